#include "devhost/EmbeddedCatalog.h"

#include "devcatalog/CatalogServer.h"
#include "devcatalog/CertificateFolder.h"
#include "devcatalog/ServiceHost.h"

#include <algorithm>
#include <chrono>
#include <exception>
#include <mutex>
#include <random>
#include <thread>

namespace devhost
{

namespace
{

devcatalog::CatalogServerOptions builtInOptions()
{
    devcatalog::CatalogServerOptions options;
    options.serviceHost = PARTHARBOR_SERVICE_HOST;
    options.port = devcatalog::ServiceHost(options.serviceHost).port();
    options.serviceAccount = {PARTHARBOR_SERVICE_CATALOG, PARTHARBOR_SERVICE_USER,
                              PARTHARBOR_SERVICE_PASSWORD, PARTHARBOR_SERVICE_ENDUSER};
    options.users = {
        {EmbeddedCatalog::accountUser().toStdString(), EmbeddedCatalog::accountPassword().toStdString()}};
    options.certificateFolder = devcatalog::defaultCertificateFolder();
    return options;
}

int randomNumber(int most)
{
    static std::mutex mutex;
    static std::mt19937 generator; // The same numbers in every run.
    const std::lock_guard<std::mutex> lock(mutex);
    return std::uniform_int_distribution<>(0, most)(generator);
}

void spoil(std::string& file, CatalogConduct::Drawings drawings)
{
    if (drawings == CatalogConduct::Drawings::CutShort)
        file.resize(file.size() / 2);
    else if (drawings == CatalogConduct::Drawings::Noise)
        std::generate(file.begin(), file.end(), [] { return static_cast<char>(randomNumber(255)); });
}

/// Spoils and delays a reply as told; called in one of the catalog's threads.
void misbehave(const CatalogConduct& conduct, devcatalog::HttpReply& reply)
{
    constexpr int longestDelay = 300; // Milliseconds.
    if (reply.contentType == "image/vnd.dwg")
        spoil(reply.body, conduct.drawings);
    if (conduct.slow)
        std::this_thread::sleep_for(std::chrono::milliseconds(randomNumber(longestDelay)));
}

} // namespace

EmbeddedCatalog::EmbeddedCatalog() = default;

EmbeddedCatalog::~EmbeddedCatalog() = default;

bool EmbeddedCatalog::start(const CatalogConduct& conduct)
{
    try {
        devcatalog::CatalogServerOptions options = builtInOptions();
        options.beforeReply = [conduct](const devcatalog::HttpRequest&, devcatalog::HttpReply& reply) {
            misbehave(conduct, reply);
        };
        m_server = std::make_unique<devcatalog::CatalogServer>(std::move(options));
        m_server->start();
        return true;
    } catch (const std::exception& exception) {
        m_server.reset();
        m_errorString = QString::fromLocal8Bit(exception.what());
        return false;
    }
}

QString EmbeddedCatalog::caFile() const
{
    return QString::fromStdString(m_server->caFile().string());
}

QString EmbeddedCatalog::accountUser()
{
    return "demo@partharbor.example";
}

QString EmbeddedCatalog::accountPassword()
{
    return "demo";
}

} // namespace devhost
