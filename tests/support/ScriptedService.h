#pragma once

#include "dev/catalog/https/HttpsServer.h"
#include "tests/support/ScriptedReply.h"
#include "tests/support/TestCertificates.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QQueue>
#include <QVector>

namespace test
{

using RecordedRequest = devcatalog::HttpRequest;

/**
 * An HTTPS service on a free port of the loopback that answers as the test says and records every request.
 * It works in the thread that made it, by its event loop: nothing is answered while that thread does not
 * turn.
 *
 * A script key is an operation name (what follows the last slash of the SOAPAction) or, with a leading slash,
 * a path. A request takes the next reply queued for its operation, else for its path, else the standing one
 * of its operation, else of its path; what nobody scripted gets status 404.
 */
class ScriptedService : public QObject
{
    Q_OBJECT

public:
    explicit ScriptedService(const ServerIdentity& identity, QObject* parent = nullptr);

    quint16 port() const { return m_server.serverPort(); }
    /// What later connections are shown.
    void setIdentity(const ServerIdentity& identity) { m_server.setIdentity(identity); }

    /// The answer whenever nothing is queued.
    void setReply(const QString& key, const ScriptedReply& reply);
    /// The answer to one request, in the order of the calls.
    void enqueue(const QString& key, const ScriptedReply& reply);

    /// Complete requests, oldest first.
    const QVector<RecordedRequest>& requests() const { return m_requests; }
    /// Those of one operation or path.
    QVector<RecordedRequest> requests(const QString& key) const;

    /// How many held replies wait.
    int heldCount() const { return m_held.size(); }
    /// Sends what was held of the reply to that request, counted as in requests().
    void release(int request);
    void releaseAll();

    /// Connections accepted that have not ended, whatever became of their handshake.
    int openConnections() const { return findChildren<devcatalog::HttpsConnection*>().size(); }
    /// Bytes that arrived inside TLS, parts of requests included.
    qint64 byteCount() const { return m_byteCount; }

private:
    struct Held {
        int request;
        QPointer<devcatalog::HttpsConnection> connection;
        ScriptedReply reply;
    };

    void addConnection(devcatalog::HttpsConnection* connection);
    void answer(devcatalog::HttpsConnection* connection, const RecordedRequest& request);
    ScriptedReply replyFor(const RecordedRequest& request);
    static void sendHeld(const Held& held);

    devcatalog::HttpsServer m_server;
    QHash<QString, ScriptedReply> m_standing;
    QHash<QString, QQueue<ScriptedReply>> m_queued;
    QVector<RecordedRequest> m_requests;
    QVector<Held> m_held;
    qint64 m_byteCount = 0;
};

} // namespace test
