#pragma once

#include "dev/catalog/https/HttpRequest.h"

#include <QObject>
#include <QSslSocket>

namespace devcatalog
{

/// One TLS connection of a HttpsServer: takes requests one after another, and sends bytes.
class HttpsConnection : public QObject
{
    Q_OBJECT

public:
    /// What follows the last byte.
    enum class Ending {
        KeepOpen, ///< as HTTP/1.1 does
        Close,
        Reset
    };

    /// The longest head and body that are read, in bytes; a client that sends more is refused.
    static constexpr int MaximumHead = 65536;
    static constexpr int MaximumBody = 1048576;

    /// Starts the handshake on an accepted socket. The connection deletes itself when its peer is gone.
    HttpsConnection(qintptr descriptor, const QSslConfiguration& tls, QObject* parent);

    void write(const QByteArray& bytes) { m_socket.write(bytes); }

    void end(Ending ending);

    /// What arrives from now on is thrown away; so it is after Close and Reset.
    void takeNoMore() { m_takesMore = false; }

    /// Waits until what was written before a Close is out.
    /// @param patience in milliseconds.
    void flush(int patience);

signals:
    void bytesArrived(qint64 count); ///< after decryption
    void requestArrived(const devcatalog::HttpRequest& request);

private slots:
    void read();

private:
    bool takeRequest();
    void refuse(const QByteArray& status);

    QSslSocket m_socket;
    QByteArray m_buffer;
    bool m_takesMore = true;
};

} // namespace devcatalog
