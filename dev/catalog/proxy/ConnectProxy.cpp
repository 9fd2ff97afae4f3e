#include "dev/catalog/proxy/ConnectProxy.h"

#include <QHostAddress>
#include <QRegularExpression>
#include <QTcpSocket>

namespace devcatalog
{

namespace
{

constexpr int MaximumHeadSize = 16 * 1024;

/// Everything that arrives at @p from goes out at @p to. So does its end; a reset counts as one, since
/// Qt reports both alike.
void forward(QTcpSocket* from, QTcpSocket* to)
{
    QObject::connect(from, &QTcpSocket::readyRead, to, [from, to] { to->write(from->readAll()); });
    QObject::connect(from, &QTcpSocket::disconnected, to, &QTcpSocket::disconnectFromHost);
}

void refuse(QTcpSocket* client, const QByteArray& status)
{
    client->write("HTTP/1.1 " + status + "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
    client->disconnectFromHost();
}

} // namespace

ConnectProxy::ConnectProxy(quint16 targetPort, QObject* parent) : QObject(parent), m_targetPort(targetPort)
{
    m_server.setProxy(QNetworkProxy::NoProxy);
    connect(&m_server, &QTcpServer::newConnection, this, &ConnectProxy::accept);
    if (!m_server.listen(QHostAddress::LocalHost))
        qCritical("The proxy cannot listen: %s", qPrintable(m_server.errorString()));
}

ConnectProxy::~ConnectProxy()
{
    if (m_used)
        QNetworkProxy::setApplicationProxy(m_before);
}

void ConnectProxy::use()
{
    if (!m_used) {
        m_before = QNetworkProxy::applicationProxy();
        m_used = true;
    }
    QNetworkProxy::setApplicationProxy({QNetworkProxy::HttpProxy, "127.0.0.1", port()});
}

void ConnectProxy::accept()
{
    while (QTcpSocket* client = m_server.nextPendingConnection()) {
        connect(client, &QTcpSocket::readyRead, this, &ConnectProxy::readRequest);
        connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
    }
}

void ConnectProxy::readRequest()
{
    auto* client = qobject_cast<QTcpSocket*>(sender());
    static const QByteArray headEnd = "\r\n\r\n";
    const QByteArray seen = client->peek(MaximumHeadSize);
    const int end = seen.indexOf(headEnd);
    if (end < 0) {
        if (seen.size() == MaximumHeadSize)
            client->abort();
        return;
    }
    client->read(end + headEnd.size());
    client->disconnect(this);

    static const QRegularExpression request("^CONNECT (\\S+) HTTP/1\\.[01]\r\n");
    const auto match = request.match(QString::fromLatin1(seen));
    m_destinations.append(match.captured(1));
    if (!match.hasMatch())
        refuse(client, "405 Method Not Allowed");
    else if (m_refusing)
        refuse(client, "503 Service Unavailable"); // reported by Qt as a refused connection
    else
        openTunnel(client);
}

void ConnectProxy::openTunnel(QTcpSocket* client)
{
    auto* target = new QTcpSocket(client);
    target->setProxy(QNetworkProxy::NoProxy);
    connect(target, &QTcpSocket::connected, client, [client, target] {
        client->write("HTTP/1.1 200 Connection established\r\n\r\n");
        forward(client, target);
        forward(target, client);
        target->write(client->readAll());
    });
    connect(target, &QTcpSocket::errorOccurred, client, [client, target] {
        if (target->error() == QAbstractSocket::ConnectionRefusedError) {
            refuse(client, "503 Service Unavailable");
        }
    });
    target->connectToHost(QHostAddress(QHostAddress::LocalHost), m_targetPort);
}

} // namespace devcatalog
