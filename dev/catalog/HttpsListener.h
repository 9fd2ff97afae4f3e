#pragma once

#include "dev/catalog/CertificateAuthority.h"
#include "dev/catalog/HttpMessages.h"

#include <functional>
#include <memory>

namespace devcatalog
{

/// Serves HTTPS on the loopback address with threads of its own, one request a connection.
class HttpsListener
{
public:
    /// Answers a request; called from several threads at a time.
    using Handler = std::function<HttpReply(const HttpRequest&)>;

    /// The longest request body that is read, in bytes.
    static constexpr std::size_t maxBodySize = 524288;

    /// Takes the port; connections wait until serve.
    /// @param port 0 for any free one.
    /// @throws std::runtime_error when the port cannot be had.
    HttpsListener(const Identity& identity, int port);

    /// Answers the requests under way, then ends.
    ~HttpsListener();
    HttpsListener(const HttpsListener&) = delete;
    HttpsListener& operator=(const HttpsListener&) = delete;

    int port() const;

    /// Begins to answer; called once.
    void serve(Handler handler);

private:
    class Server;
    std::unique_ptr<Server> m_server;
};

} // namespace devcatalog
