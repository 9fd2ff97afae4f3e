#pragma once

#include "dev/catalog/https/HttpReply.h"
#include "dev/catalog/https/HttpRequest.h"
#include "dev/catalog/https/HttpsServer.h"

#include <QThread>
#include <QThreadPool>

#include <functional>

namespace devcatalog
{

/// Serves HTTPS on the loopback address, one request a connection: one thread of its own has the connections,
/// others answer. A client that is silent, or whose answer takes long, keeps nobody waiting.
class HttpsListener
{
public:
    /// Answers a request; called from several threads at a time.
    using Handler = std::function<HttpReply(const HttpRequest&)>;

    /// Takes the port; connections wait until serve.
    /// @param port 0 for any free one.
    /// @throws std::runtime_error when the port cannot be had.
    HttpsListener(const ServerIdentity& identity, int port);

    /// Answers the requests under way, then ends.
    ~HttpsListener();
    HttpsListener(const HttpsListener&) = delete;
    HttpsListener& operator=(const HttpsListener&) = delete;

    int port() const { return m_port; }

    /// Begins to answer; called once.
    void serve(Handler handler);

private:
    void answer(HttpsConnection* connection, const HttpRequest& request);
    void inConnectionThread(const std::function<void()>& call);

    HttpsServer m_server;
    int m_port = 0;
    Handler m_handler;
    QThread m_thread; ///< has the server and its connections
    QThreadPool m_pool;
};

} // namespace devcatalog
