#include "dev/catalog/HttpsListener.h"

#include <httplib.h>
#include <openssl/bio.h>
#include <openssl/ssl.h>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <future>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>

namespace devcatalog
{

namespace
{

/// What a connection may send in all: the longest body, headers and the wrapping of TLS. The HTTP library
/// itself has no bound for a header line, nor for a body that comes in chunks.
constexpr std::uint64_t MaxConnectionBytes = 2 * std::uint64_t{HttpsListener::maxBodySize};

/// Longer paths are not matched: the standard library's regular expressions walk a text recursively.
constexpr std::size_t MaxPathLength = 1024;

/// A page of results opens about as many connections at once as it has pictures.
constexpr std::size_t ThreadCount = 16;
constexpr int Backlog = 128;

/// Called for each record: a connection that has sent too much reads as ended.
void limitConnection(int isWritten, int /*version*/, int /*contentType*/, const void* /*record*/,
                     std::size_t /*size*/, SSL* connection, void* /*argument*/)
{
    if (!isWritten && BIO_number_read(SSL_get_rbio(connection)) > MaxConnectionBytes)
        SSL_set_shutdown(connection, SSL_get_shutdown(connection) | SSL_RECEIVED_SHUTDOWN);
}

bool prepareContext(SSL_CTX& context, const Identity& identity)
{
    SSL_CTX_set_msg_callback(&context, &limitConnection);
    return SSL_CTX_set_min_proto_version(&context, TLS1_2_VERSION) == 1 &&
           SSL_CTX_use_certificate(&context, identity.certificate.get()) == 1 &&
           SSL_CTX_use_PrivateKey(&context, identity.key.get()) == 1;
}

/// The library's own choice lets two servers share a port.
void claimPortAlone(socket_t socket)
{
    const int yes = 1;
#ifdef _WIN32
    const int option = SO_EXCLUSIVEADDRUSE;
#else
    const int option = SO_REUSEADDR; // only past a port's closed connections
#endif
    setsockopt(socket, SOL_SOCKET, option, reinterpret_cast<const char*>(&yes), sizeof(yes));
}

std::string lowerCase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char character) { return static_cast<char>(std::tolower(character)); });
    return text;
}

HttpRequest received(const httplib::Request& request)
{
    HttpRequest result{request.method, request.path, {}, {}, false};
    for (const auto& [name, value] : request.headers)
        result.headers.emplace(lowerCase(name), value);
    return result;
}

/// Reads the body; one that is too long is read on but not kept, for a client whose bytes stay unread may
/// find the connection reset before it sees the reply.
void readBody(HttpRequest& result, const httplib::Request& request, const httplib::ContentReader& read)
{
    if (!request.has_header("Content-Length") && !request.has_header("Transfer-Encoding"))
        return; // there is none, while the library would wait for the connection's end
    std::uint64_t total = 0;
    const auto keep = [&result, &total](const char* data, std::size_t size) {
        total += size;
        result.bodyTooLong = total > HttpsListener::maxBodySize;
        if (!result.bodyTooLong)
            result.body.append(data, size);
        return total <= MaxConnectionBytes; // it may be compressed, so that this is still to be said here
    };
    if (request.is_multipart_form_data())
        read([](const httplib::MultipartFormData&) { return true; }, keep);
    else
        read(keep);
}

void send(httplib::Response& response, const HttpReply& reply)
{
    response.status = reply.status;
    response.set_content(reply.body, reply.contentType);
}

} // namespace

class HttpsListener::Server : public httplib::SSLServer
{
public:
    explicit Server(const Identity& identity)
        : SSLServer([&identity](SSL_CTX& context) { return prepareContext(context, identity); })
    {
        set_socket_options(&claimPortAlone);
        set_tcp_nodelay(true);       // without it a reply waits for the client's next acknowledgement
        set_keep_alive_max_count(1); // or pictures queue behind connections that idle
    }

    /// @return the port; 0 when it cannot be had.
    int bind(int port)
    {
        const std::string loopback = "127.0.0.1";
        if (port == 0)
            m_port = std::max(0, bind_to_any_port(loopback));
        else if (bind_to_port(loopback, port))
            m_port = port;
        if (m_port != 0) {
            // Again: the library's own Backlog drops connections that come together.
            ::listen(svr_sock_, Backlog);
        }
        return m_port;
    }

    /// Returns once the thread that accepts connections runs, for only then can it be stopped.
    void run(HttpsListener::Handler handler)
    {
        m_handler = std::move(handler);
        set_pre_routing_handler(
            [this](const auto& request, auto& response) { return answerWithoutBody(request, response); });
        Post(".*", [this](const auto& request, auto& response, const auto& read) {
            HttpRequest posted = received(request);
            readBody(posted, request, read);
            send(response, m_handler(posted));
        });

        std::promise<void> running;
        new_task_queue = [&running]() {
            auto* const pool = new httplib::ThreadPool(ThreadCount); // owned by the library
            running.set_value();
            return pool;
        };
        m_thread = std::thread([this]() { listen_after_bind(); });
        running.get_future().wait();
    }

    void end()
    {
        if (m_thread.joinable()) {
            stop();
            m_thread.join();
        }
    }

    int port() const { return m_port; }

private:
    HandlerResponse answerWithoutBody(const httplib::Request& request, httplib::Response& response)
    {
        if (!request.ranges.empty()) { // many small parts of a file make a large reply
            response.status = 416;
            return HandlerResponse::Handled;
        }
        if (request.method == "POST" && request.path.size() <= MaxPathLength)
            return HandlerResponse::Unhandled;
        send(response, m_handler(received(request)));
        return HandlerResponse::Handled;
    }

    HttpsListener::Handler m_handler;
    int m_port = 0;
    std::thread m_thread;
};

HttpsListener::HttpsListener(const Identity& identity, int port)
    : m_server(std::make_unique<Server>(identity))
{
    if (m_server->bind(port) == 0) {
        throw std::runtime_error(
            "port " + std::to_string(port) +
            " of 127.0.0.1 is taken (or not free for programs of this user). End what uses it, "
            "or configure another PARTHARBOR_SERVICE_HOST.");
    }
}

HttpsListener::~HttpsListener()
{
    m_server->end();
}

int HttpsListener::port() const
{
    return m_server->port();
}

void HttpsListener::serve(Handler handler)
{
    m_server->run(std::move(handler));
}

} // namespace devcatalog
