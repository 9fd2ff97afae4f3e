#include "dev/host/EmbeddedCatalog.h"

#include "dev/catalog/BuiltInOptions.h"

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

int randomNumber(int most)
{
    static std::mutex mutex;
    static std::mt19937 generator; // The same numbers in every run.
    const std::lock_guard<std::mutex> lock(mutex);
    return std::uniform_int_distribution<>(0, most)(generator);
}

void spoil(std::string& file, CatalogFaults::Drawings drawings)
{
    if (drawings == CatalogFaults::Drawings::CutShort)
        file.resize(file.size() / 2);
    else if (drawings == CatalogFaults::Drawings::Noise)
        std::generate(file.begin(), file.end(), [] { return static_cast<char>(randomNumber(255)); });
}

/// Spoils and delays a reply as the options ask for; called in one of the catalog's threads.
void inject(const CatalogFaults& faults, devcatalog::HttpReply& reply)
{
    constexpr int longestDelay = 300; // Milliseconds.
    if (reply.contentType == "image/vnd.dwg")
        spoil(reply.body, faults.drawings);
    if (faults.slow)
        std::this_thread::sleep_for(std::chrono::milliseconds(randomNumber(longestDelay)));
}

} // namespace

EmbeddedCatalog::EmbeddedCatalog() = default;

EmbeddedCatalog::~EmbeddedCatalog() = default;

bool EmbeddedCatalog::start(const Options& options)
{
    try {
        devcatalog::CatalogServerOptions service = devcatalog::builtInOptions();
        service.preparesPictures = !options.tour;
        service.beforeReply = [faults = options.catalogFaults](const devcatalog::HttpRequest&,
                                                               devcatalog::HttpReply& reply) {
            inject(faults, reply);
        };
        m_server = std::make_unique<devcatalog::CatalogServer>(std::move(service));
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
    return QString::fromStdString(devcatalog::demoAccount().userId);
}

QString EmbeddedCatalog::accountPassword()
{
    return QString::fromStdString(devcatalog::demoAccount().password);
}

} // namespace devhost
