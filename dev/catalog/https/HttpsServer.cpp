#include "dev/catalog/https/HttpsServer.h"

#include <QNetworkProxy>

namespace devcatalog
{

HttpsServer::HttpsServer(const ServerIdentity& identity, QObject* parent) : QTcpServer(parent)
{
    setProxy(QNetworkProxy::NoProxy);
    m_tls.setPeerVerifyMode(QSslSocket::VerifyNone);
    m_tls.setProtocol(QSsl::TlsV1_2OrLater);
    setIdentity(identity);
}

void HttpsServer::setIdentity(const ServerIdentity& identity)
{
    m_tls.setLocalCertificate(identity.certificate);
    m_tls.setPrivateKey(identity.key);
}

void HttpsServer::incomingConnection(qintptr descriptor)
{
    emit connectionArrived(new HttpsConnection(descriptor, m_tls, this));
}

} // namespace devcatalog
