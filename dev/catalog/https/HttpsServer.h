#pragma once

#include "dev/catalog/https/HttpsConnection.h"
#include "dev/catalog/https/ServerIdentity.h"

#include <QSslConfiguration>
#include <QTcpServer>

namespace devcatalog
{

/// Takes TLS connections at a port of 127.0.0.1. Works by the event loop of its thread.
class HttpsServer : public QTcpServer
{
    Q_OBJECT

public:
    explicit HttpsServer(const ServerIdentity& identity, QObject* parent = nullptr);

    /// What later connections are shown.
    void setIdentity(const ServerIdentity& identity);
    /// Takes the port; 0 for any free one. @return whether it could be had; see errorString().
    bool takePort(quint16 port) { return listen(QHostAddress::LocalHost, port); }

signals:
    /// @param connection lives in this object's thread; owned by this object.
    void connectionArrived(devcatalog::HttpsConnection* connection);

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    QSslConfiguration m_tls;
};

} // namespace devcatalog
