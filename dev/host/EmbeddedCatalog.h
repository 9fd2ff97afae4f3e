#pragma once

#include "dev/host/Options.h"

#include <QString>

#include <memory>

namespace devcatalog
{
class CatalogServer;
}

namespace devhost
{

/// The development catalog's service in this process, at the service host that the add-in was built for.
class EmbeddedCatalog
{
public:
    EmbeddedCatalog();
    /// Stops the service.
    ~EmbeddedCatalog();
    EmbeddedCatalog(const EmbeddedCatalog&) = delete;
    EmbeddedCatalog& operator=(const EmbeddedCatalog&) = delete;

    /// Starts the service as the options ask for. A tour opens few parts at once, so it begins without the
    /// pictures that would be made for a person. @return false when it cannot be: see errorString().
    bool start(const Options& options);
    /// @return one line for a person to read.
    const QString& errorString() const { return m_errorString; }

    /// @return the PEM file of the certificate authority to trust; it exists after start().
    QString caFile() const;
    /// @return an account that can log in.
    static QString accountUser();
    static QString accountPassword();

private:
    std::unique_ptr<devcatalog::CatalogServer> m_server;
    QString m_errorString;
};

} // namespace devhost
