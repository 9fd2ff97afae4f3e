#include "tests/support/ScriptedService.h"

#include <algorithm>
#include <array>
#include <utility>

using devcatalog::HttpsConnection;
using devcatalog::HttpsServer;

namespace test
{

namespace
{

bool matches(const RecordedRequest& request, const QString& key)
{
    return key.startsWith('/') ? request.path() == key : request.operation() == key;
}

} // namespace

ScriptedService::ScriptedService(const ServerIdentity& identity, QObject* parent)
    : QObject(parent), m_server(identity, this)
{
    connect(&m_server, &HttpsServer::connectionArrived, this, &ScriptedService::addConnection);
    if (!m_server.takePort(0))
        qCritical("The scripted service cannot listen: %s", qPrintable(m_server.errorString()));
}

void ScriptedService::setReply(const QString& key, const ScriptedReply& reply)
{
    m_standing.insert(key, reply);
}

void ScriptedService::enqueue(const QString& key, const ScriptedReply& reply)
{
    m_queued[key].enqueue(reply);
}

QVector<RecordedRequest> ScriptedService::requests(const QString& key) const
{
    QVector<RecordedRequest> found;
    std::copy_if(m_requests.begin(), m_requests.end(), std::back_inserter(found),
                 [&key](const RecordedRequest& request) { return matches(request, key); });
    return found;
}

void ScriptedService::release(int request)
{
    const auto found = std::find_if(m_held.begin(), m_held.end(),
                                    [request](const Held& held) { return held.request == request; });
    if (found == m_held.end()) {
        qCritical("No reply is held for request %d", request);
        return;
    }
    const Held held = *found;
    m_held.erase(found);
    sendHeld(held);
}

void ScriptedService::releaseAll()
{
    for (const Held& held : std::exchange(m_held, {}))
        sendHeld(held);
}

void ScriptedService::sendHeld(const Held& held)
{
    if (held.connection) {
        held.connection->write(held.reply.bytes().mid(held.reply.heldFrom()));
        held.connection->end(held.reply.ending());
    }
}

void ScriptedService::addConnection(HttpsConnection* connection)
{
    connect(connection, &HttpsConnection::bytesArrived, this, [this](qint64 count) { m_byteCount += count; });
    connect(connection, &HttpsConnection::requestArrived, this,
            [this, connection](const RecordedRequest& request) { answer(connection, request); });
}

void ScriptedService::answer(HttpsConnection* connection, const RecordedRequest& request)
{
    m_requests.append(request);
    const ScriptedReply reply = replyFor(request);
    if (reply.heldFrom() >= 0) {
        connection->write(reply.bytes().left(reply.heldFrom()));
        m_held.append({m_requests.size() - 1, connection, reply});
    } else {
        connection->write(reply.bytes());
        connection->end(reply.ending());
    }
}

ScriptedReply ScriptedService::replyFor(const RecordedRequest& request)
{
    const std::array<QString, 2> keys{request.operation(), request.path()};
    for (const QString& key : keys)
        if (!m_queued.value(key).isEmpty())
            return m_queued[key].dequeue();
    for (const QString& key : keys) {
        const auto standing = m_standing.constFind(key);
        if (standing != m_standing.constEnd())
            return *standing;
    }
    return ScriptedReply::status(404, "nothing is scripted for " + request.target, "text/plain");
}

} // namespace test
