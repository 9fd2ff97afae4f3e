#include "dev/catalog/CatalogServer.h"

#include "dev/catalog/CatalogSite.h"
#include "dev/catalog/CertificateAuthority.h"
#include "dev/catalog/CertificateFolder.h"
#include "dev/catalog/PicturePreparation.h"
#include "dev/catalog/ServiceHost.h"
#include "dev/catalog/https/HttpsListener.h"
#include "dev/catalog/soap/SoapService.h"
#include "dev/catalog/soap/XmlText.h"

#include <atomic>
#include <optional>
#include <stdexcept>
#include <utility>

namespace devcatalog
{

namespace
{

std::string logLine(const RequestRecord& request)
{
    const std::string operation = request.operation.empty() ? "" : " " + request.operation;
    const std::string fault = request.fault.empty() ? "" : " refused: " + request.fault;
    return request.method + " " + quote(request.path) + operation + " " + std::to_string(request.status) +
           fault;
}

std::filesystem::path certificateFolder(const CatalogServerOptions& options)
{
    return options.certificateFolder.empty() ? defaultCertificateFolder() : options.certificateFolder;
}

} // namespace

/// All that serves between start and stop.
class CatalogServer::Service
{
public:
    /// Takes the port.
    explicit Service(const CatalogServerOptions& options)
        : m_site(m_catalog), m_authority(certificateFolder(options))
    {
        const std::string local = "localhost";
        const ServiceHost given(options.serviceHost.empty() ? local : options.serviceHost);
        m_listener.emplace(m_authority.issue(given.name()), options.port);
        m_host = options.serviceHost.empty() ? ServiceHost(local + ":" + std::to_string(port())) : given;
        m_soap.emplace(*m_host, options.serviceAccount, options.users, m_catalog, m_site);
    }

    void serve(CatalogServer& server)
    {
        m_listener->serve([this, &server](const HttpRequest& request) {
            ++m_requests;
            SoapReply reply = answer(request);
            --m_requests;
            server.record({request.method.toStdString(), request.path().toStdString(), reply.operation,
                           reply.http.status, reply.fault});
            if (server.m_options.beforeReply)
                server.m_options.beforeReply(request, reply.http);
            return reply.http;
        });
        if (server.m_options.preparesPictures)
            m_preparation.emplace(m_catalog, m_requests,
                                  [this](const Part& part) { m_site.get('/' + m_site.thumbnailPath(part)); });
    }

    int port() const { return m_listener->port(); }
    const std::string& host() const { return m_host->text(); }
    std::filesystem::path caFile() const { return m_authority.caFile(); }

private:
    SoapReply answer(const HttpRequest& request)
    {
        if (request.method == "POST")
            return m_soap->answer(request);
        const bool isRead = request.method == "GET" || request.method == "HEAD";
        const QByteArray path = isRead ? request.path().toUtf8() : QByteArray();
        return {m_site.get(QByteArray::fromPercentEncoding(path).toStdString()), {}, {}};
    }

    PartCatalog m_catalog;
    CatalogSite m_site;
    std::atomic<int> m_requests = 0; ///< being answered
    std::optional<PicturePreparation> m_preparation;
    CertificateAuthority m_authority;
    std::optional<ServiceHost> m_host;
    std::optional<SoapService> m_soap;
    std::optional<HttpsListener> m_listener; ///< ends before what it serves
};

CatalogServer::CatalogServer(CatalogServerOptions options) : m_options(std::move(options))
{
}

CatalogServer::~CatalogServer() = default;

void CatalogServer::start()
{
    if (m_service)
        return;
    try {
        m_service = std::make_unique<Service>(m_options);
    } catch (const std::runtime_error& error) {
        throw std::runtime_error("The development catalog cannot start: " + std::string(error.what()));
    }
    m_service->serve(*this);
}

void CatalogServer::stop()
{
    m_service.reset();
}

int CatalogServer::port() const
{
    return m_service ? m_service->port() : 0;
}

std::string CatalogServer::serviceHost() const
{
    return m_service ? m_service->host() : m_options.serviceHost;
}

std::filesystem::path CatalogServer::caFile() const
{
    return m_service ? m_service->caFile() : std::filesystem::path();
}

std::vector<RequestRecord> CatalogServer::requests() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return {m_requests.begin(), m_requests.end()};
}

void CatalogServer::record(const RequestRecord& request)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_requests.push_back(request);
    if (m_requests.size() > MaximumRecords)
        m_requests.pop_front();
    if (m_options.log)
        m_options.log(logLine(request));
}

} // namespace devcatalog
