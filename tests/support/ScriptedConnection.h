#pragma once

#include "tests/support/RecordedRequest.h"
#include "tests/support/ScriptedReply.h"

#include <QObject>
#include <QSslSocket>

namespace test
{

struct ServerIdentity;

/// One TLS connection of a ScriptedService: takes requests one after another.
class ScriptedConnection : public QObject
{
    Q_OBJECT

public:
    /// Starts the handshake on an accepted socket. The connection deletes itself when its peer is gone.
    ScriptedConnection(qintptr descriptor, const ServerIdentity& identity, QObject* parent);

    void write(const QByteArray& bytes) { m_socket.write(bytes); }
    void end(ScriptedReply::Ending ending);

signals:
    void bytesArrived(qint64 count); ///< after decryption
    void requestArrived(const test::RecordedRequest& request);

private slots:
    void read();

private:
    bool takeRequest();

    QSslSocket m_socket;
    QByteArray m_buffer;
};

} // namespace test
