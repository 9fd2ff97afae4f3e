#include "dev/catalog/https/HttpsListener.h"

#include <QPointer>

#include <stdexcept>
#include <string>
#include <utility>

namespace devcatalog
{

namespace
{

/// More than the pictures that ten clients ask for at a time.
constexpr int ThreadCount = 64;

/// How long the end of the service waits for a client to take its reply, in milliseconds.
constexpr int Patience = 5000;

QByteArray reasonOf(int status)
{
    if (status == 200)
        return "OK";
    return status == 404 ? "Not Found" : "Internal Server Error";
}

/// @param withBody false for the reply to a HEAD request.
QByteArray bytesOf(const HttpReply& reply, bool withBody)
{
    const QByteArray head = "HTTP/1.1 " + QByteArray::number(reply.status) + ' ' + reasonOf(reply.status) +
                            "\r\nContent-Type: " + QByteArray::fromStdString(reply.contentType) +
                            "\r\nContent-Length: " + QByteArray::number(qulonglong(reply.body.size())) +
                            "\r\nConnection: close\r\n\r\n";
    return withBody ? head + QByteArray::fromStdString(reply.body) : head;
}

} // namespace

HttpsListener::HttpsListener(const ServerIdentity& identity, int port) : m_server(identity)
{
    m_pool.setMaxThreadCount(ThreadCount);
    if (!m_server.takePort(static_cast<quint16>(port))) {
        throw std::runtime_error(
            "port " + std::to_string(port) +
            " of 127.0.0.1 is taken (or not free for programs of this user). End what uses it, "
            "or configure another PARTHARBOR_SERVICE_HOST.");
    }
    m_port = m_server.serverPort();
}

HttpsListener::~HttpsListener()
{
    if (!m_thread.isRunning())
        return;
    inConnectionThread([this] {
        m_server.close();
        for (HttpsConnection* connection : m_server.findChildren<HttpsConnection*>())
            connection->takeNoMore();
    });
    m_pool.waitForDone();
    inConnectionThread([this] {
        for (HttpsConnection* connection : m_server.findChildren<HttpsConnection*>()) {
            connection->flush(Patience);
            delete connection;
        }
    });
    m_thread.quit();
    m_thread.wait();
}

void HttpsListener::serve(Handler handler)
{
    m_handler = std::move(handler);
    QObject::connect(
        &m_server, &HttpsServer::connectionArrived, &m_server, [this](HttpsConnection* connection) {
            QObject::connect(connection, &HttpsConnection::requestArrived, connection,
                             [this, connection](const HttpRequest& request) { answer(connection, request); });
        });
    m_server.moveToThread(&m_thread);
    m_thread.start();
}

void HttpsListener::answer(HttpsConnection* connection, const HttpRequest& request)
{
    connection->takeNoMore();
    m_pool.start([this, client = QPointer<HttpsConnection>(connection), request] {
        const QByteArray bytes = bytesOf(m_handler(request), request.method != "HEAD");
        QMetaObject::invokeMethod(&m_server, [client, bytes] {
            if (client) {
                client->write(bytes);
                client->end(HttpsConnection::Ending::Close);
            }
        });
    });
}

void HttpsListener::inConnectionThread(const std::function<void()>& call)
{
    QMetaObject::invokeMethod(&m_server, call, Qt::BlockingQueuedConnection);
}

} // namespace devcatalog
