#include "tests/support/ScriptedConnection.h"

#include "tests/support/ConnectionReset.h"
#include "tests/support/TestCertificates.h"

#include <QNetworkProxy>

namespace test
{

ScriptedConnection::ScriptedConnection(qintptr descriptor, const ServerIdentity& identity, QObject* parent)
    : QObject(parent)
{
    connect(&m_socket, &QSslSocket::readyRead, this, &ScriptedConnection::read);
    connect(&m_socket, &QSslSocket::disconnected, this, &QObject::deleteLater);
    m_socket.setProxy(QNetworkProxy::NoProxy);
    m_socket.setSocketDescriptor(descriptor);
    m_socket.setLocalCertificate(identity.certificate);
    m_socket.setPrivateKey(identity.key);
    m_socket.startServerEncryption();
}

void ScriptedConnection::end(ScriptedReply::Ending ending)
{
    switch (ending) {
    case ScriptedReply::Ending::KeepOpen:
        break;
    case ScriptedReply::Ending::Close:
        m_socket.disconnectFromHost();
        break;
    case ScriptedReply::Ending::Reset:
        resetConnection(m_socket);
        break;
    }
}

void ScriptedConnection::read()
{
    const QByteArray arrived = m_socket.readAll();
    m_buffer += arrived;
    emit bytesArrived(arrived.size());
    while (takeRequest()) {
    }
}

bool ScriptedConnection::takeRequest()
{
    static const QByteArray headEnd = "\r\n\r\n";
    const int headSize = m_buffer.indexOf(headEnd);
    if (headSize < 0)
        return false;
    RecordedRequest request;
    bool understood = request.readHead(m_buffer.left(headSize));
    const QByteArray length = request.header("Content-Length");
    const int bodySize = length.isNull() ? 0 : length.toInt(&understood);
    if (!understood || bodySize < 0) {
        m_buffer.clear();
        write(ScriptedReply::status(400).bytes());
        end(ScriptedReply::Ending::Close);
        return false;
    }
    const int bodyStart = headSize + headEnd.size();
    if (m_buffer.size() < bodyStart + bodySize)
        return false;
    request.body = m_buffer.mid(bodyStart, bodySize);
    m_buffer.remove(0, bodyStart + bodySize);
    emit requestArrived(request);
    return true;
}

} // namespace test
