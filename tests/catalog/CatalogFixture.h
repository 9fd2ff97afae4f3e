#pragma once

#include "dev/catalog/CatalogServer.h"
#include "dev/catalog/parts/PartCatalog.h"
#include "tests/catalog/CatalogClient.h"

#include <QHash>
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

    /// What the client puts into a request's element: of its session, and of the catalog's first part.
    QByteArray value(const QByteArray& element) const { return m_values.value(element); }

    /// The operations in the order in which a client sends them.
    static QVector<QByteArray> operations();

    /// A valid request, made from the add-in's own template.
    SoapRequest request(const QByteArray& operation) const;

    HttpAnswer post(const SoapRequest& request) const { return m_client->post(request); }

    /// @return the text of the result; null, and a failed test, when the request was refused.
    QString carriedOut(const SoapRequest& request) const;

    /// All lines of the server's log, each ended.
    QByteArray log() const;

private:
    QTemporaryDir m_folder;
    devcatalog::PartCatalog m_catalog;
    mutable std::mutex m_mutex;
    QByteArray m_log;
    std::unique_ptr<devcatalog::CatalogServer> m_server;
    std::unique_ptr<CatalogClient> m_client;
    QHash<QByteArray, QByteArray> m_values;
};

} // namespace test
