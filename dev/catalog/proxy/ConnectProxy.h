#pragma once

#include <QNetworkProxy>
#include <QObject>
#include <QStringList>
#include <QTcpServer>

class QTcpSocket;

namespace devcatalog
{

/**
 * An HTTP proxy on a free port of the loopback that leads every name to one local port. Code built for a
 * fixed host name reaches a test service that way, and tests run side by side. Works in the thread that made
 * it, by its event loop.
 */
class ConnectProxy : public QObject
{
    Q_OBJECT

public:
    /// @param targetPort the port on 127.0.0.1 that all tunnels lead to.
    explicit ConnectProxy(quint16 targetPort, QObject* parent = nullptr);
    /// Ends all tunnels and takes back use().
    ~ConnectProxy() override;

    /// Makes this the application's proxy.
    void use();

    /// For later connections; those that stand are kept.
    void setTargetPort(quint16 port) { m_targetPort = port; }
    /// Whether later connections are refused, as by a host where nothing listens.
    void setRefusing(bool refusing) { m_refusing = refusing; }

    quint16 port() const { return m_server.serverPort(); }
    /// "host:port" of every connection asked for, refused ones included, oldest first.
    const QStringList& destinations() const { return m_destinations; }

private slots:
    void accept();
    void readRequest();

private:
    void openTunnel(QTcpSocket* client);

    QTcpServer m_server;
    quint16 m_targetPort;
    bool m_refusing = false;
    bool m_used = false;
    QNetworkProxy m_before; ///< the application's proxy before use()
    QStringList m_destinations;
};

} // namespace devcatalog
