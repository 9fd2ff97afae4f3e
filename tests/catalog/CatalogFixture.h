#pragma once

#include "dev/catalog/CatalogServer.h"
#include "dev/catalog/parts/PartCatalog.h"
#include "tests/catalog/CatalogClient.h"
#include "tests/catalog/ValidRequests.h"

#include <QTemporaryDir>

#include <memory>
#include <mutex>
#include <string>

namespace test
{

/// A development catalog on a free port, and a client that is logged in to it.
class CatalogFixture
{
public:
    CatalogFixture();

    /// What its server was started with; another one may be started with the same.
    devcatalog::CatalogServerOptions options() const;

    const devcatalog::PartCatalog& catalog() const { return m_catalog; }
    devcatalog::CatalogServer& server() { return *m_server; }
    const CatalogClient& client() const { return *m_client; }

    /// The client's session, and the catalog's first part.
    const ClientValues& values() const { return m_values; }

    QByteArray serviceHost() const;

    /// The right form of an operation.
    RightForm form(const QByteArray& operation) const;
    SoapRequest request(const QByteArray& operation) const { return form(operation).request(serviceHost()); }

    HttpAnswer post(const RightForm& form) const;

    /// @return the text of the result; null, and a failed test, when the request was refused.
    QString carriedOut(const RightForm& form) const;

    /// All lines of the server's log, each ended.
    QByteArray log() const;

private:
    QTemporaryDir m_folder;
    devcatalog::PartCatalog m_catalog;
    mutable std::mutex m_mutex;
    QByteArray m_log;
    std::unique_ptr<devcatalog::CatalogServer> m_server;
    std::unique_ptr<CatalogClient> m_client;
    ClientValues m_values;
};

} // namespace test
