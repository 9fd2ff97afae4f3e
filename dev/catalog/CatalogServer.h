#pragma once

#include "dev/catalog/Accounts.h"
#include "dev/catalog/https/HttpReply.h"
#include "dev/catalog/https/HttpRequest.h"

#include <cstddef>
#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace devcatalog
{

/// What a catalog server is started with.
struct CatalogServerOptions {
    /// "host" or "host:port" as clients know it: namespace, download addresses and the certificate follow
    /// from it. Empty: "localhost:" and the port that is served.
    std::string serviceHost;

    /// The port of 127.0.0.1 to serve; 0 for any free one.
    int port = 0;

    ServiceAccount serviceAccount;
    std::vector<UserAccount> users;

    /// Where the certificate authority is kept; created where needed. Empty: defaultCertificateFolder().
    std::filesystem::path certificateFolder;

    /// Whether the parts' pictures are made from the start on, not only when they are asked for. It keeps a
    /// processor busy for up to a minute.
    bool preparesPictures = false;

    /// Takes a line for each request; it never holds a password, session id, key or token. Called from the
    /// server's threads, one at a time. May be empty.
    std::function<void(const std::string& line)> log;

    /// Gets each reply before it is sent and may delay or spoil it, to try clients against such a service.
    /// Called from the server's threads, several at a time. May be empty.
    std::function<void(const HttpRequest& request, HttpReply& reply)> beforeReply;
};

/// How a request went.
struct RequestRecord {
    std::string method;
    std::string path;
    std::string operation; ///< of a posted request that names one
    int status = 0;        ///< of HTTP
    std::string fault;     ///< why a posted request was refused; empty when it was carried out
};

/// The development catalog: a catalog service with its web site, over HTTPS on this machine alone.
class CatalogServer
{
public:
    explicit CatalogServer(CatalogServerOptions options);

    /// Stops.
    ~CatalogServer();
    CatalogServer(const CatalogServer&) = delete;
    CatalogServer& operator=(const CatalogServer&) = delete;

    /// Serves with threads of its own; returns once clients can connect. Does nothing when it serves already.
    /// @throws std::invalid_argument when the service host is none.
    /// @throws std::runtime_error when the port is taken or the certificates cannot be written; its text is
    /// one
    ///         line for a person to read.
    void start();

    /// Answers the requests under way, then ends; a client that does not take its reply delays this by 5
    /// seconds. Sessions, keys and tokens are forgotten.
    void stop();

    /// @return the port that is served; 0 before start.
    int port() const;

    /// @return the host as clients know it; empty before start when it follows from the port.
    std::string serviceHost() const;

    /// @return the PEM file of the certificate that clients must trust; it exists after start.
    std::filesystem::path caFile() const;

    /// @return the latest requests, oldest first, each from before its reply was sent.
    std::vector<RequestRecord> requests() const;

private:
    class Service;
    static constexpr std::size_t MaximumRecords = 10000;

    void record(const RequestRecord& request);

    CatalogServerOptions m_options;
    std::unique_ptr<Service> m_service; ///< while it serves
    mutable std::mutex m_mutex;         ///< guards what follows, and the log
    std::deque<RequestRecord> m_requests;
};

} // namespace devcatalog
