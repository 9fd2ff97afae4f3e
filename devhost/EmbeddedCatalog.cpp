#include "devhost/EmbeddedCatalog.h"

#include "devcatalog/CatalogServer.h"
#include "devcatalog/CertificateFolder.h"
#include "devcatalog/ServiceHost.h"

#include <exception>

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

} // namespace

EmbeddedCatalog::EmbeddedCatalog() = default;

EmbeddedCatalog::~EmbeddedCatalog() = default;

bool EmbeddedCatalog::start()
{
    try {
        m_server = std::make_unique<devcatalog::CatalogServer>(builtInOptions());
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
