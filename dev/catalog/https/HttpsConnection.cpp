#include "dev/catalog/https/HttpsConnection.h"

#include "dev/catalog/https/ConnectionReset.h"

#include <QNetworkProxy>

namespace devcatalog
{

HttpsConnection::HttpsConnection(qintptr descriptor, const QSslConfiguration& tls, QObject* parent)
    : QObject(parent), m_socket(this)
{
    connect(&m_socket, &QSslSocket::readyRead, this, &HttpsConnection::read);
    connect(&m_socket, &QSslSocket::disconnected, this, &QObject::deleteLater);
    m_socket.setProxy(QNetworkProxy::NoProxy);
    m_socket.setSslConfiguration(tls);
    m_socket.setSocketDescriptor(descriptor);
    m_socket.setSocketOption(QAbstractSocket::LowDelayOption, 1); // or a reply waits for an acknowledgement
    m_socket.startServerEncryption();
}

void HttpsConnection::end(Ending ending)
{
    m_takesMore = m_takesMore && ending == Ending::KeepOpen;
    if (ending == Ending::Close)
        m_socket.disconnectFromHost();
    else if (ending == Ending::Reset)
        resetConnection(m_socket);
}

void HttpsConnection::flush(int patience)
{
    if (m_socket.state() == QAbstractSocket::ClosingState)
        m_socket.waitForDisconnected(patience);
}

void HttpsConnection::read()
{
    const QByteArray arrived = m_socket.readAll();
    m_buffer += arrived;
    emit bytesArrived(arrived.size());
    while (m_takesMore && takeRequest()) {
    }
    if (!m_takesMore)
        m_buffer.clear();
}

/// @return whether there was a whole request.
bool HttpsConnection::takeRequest()
{
    static const QByteArray headEnd = "\r\n\r\n";
    const int headSize = m_buffer.indexOf(headEnd);
    if (headSize > MaximumHead || (headSize < 0 && m_buffer.size() > MaximumHead))
        refuse("431 Request Header Fields Too Large");
    if (headSize < 0 || !m_takesMore)
        return false;

    HttpRequest request;
    bool understood = request.readHead(m_buffer.left(headSize));
    const QByteArray length = request.header("Content-Length");
    const qint64 bodySize = length.isNull() ? 0 : length.toLongLong(&understood);
    if (!understood || bodySize < 0)
        refuse("400 Bad Request");
    else if (bodySize > MaximumBody)
        refuse("413 Content Too Large");
    const int bodyStart = headSize + headEnd.size();
    if (!m_takesMore || m_buffer.size() < bodyStart + bodySize)
        return false;
    request.body = m_buffer.mid(bodyStart, int(bodySize));
    m_buffer.remove(0, bodyStart + int(bodySize));
    emit requestArrived(request);
    return true;
}

void HttpsConnection::refuse(const QByteArray& status)
{
    write("HTTP/1.1 " + status + "\r\nContent-Length: 0\r\n\r\n");
    end(Ending::Close);
}

} // namespace devcatalog
