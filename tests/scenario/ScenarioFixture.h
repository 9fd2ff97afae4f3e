#pragma once

#include "dev/catalog/CatalogServer.h"
#include "dev/catalog/parts/PartCatalog.h"
#include "dev/catalog/proxy/ConnectProxy.h"
#include "dev/host/headless/PaneUser.h"
#include "dev/host/model/AddInLibrary.h"
#include "dev/host/model/HostApplication.h"
#include "tests/host/ScriptedHostView.h"
#include "tests/support/FatalWarnings.h"
#include "tests/support/MessageBoxAnswerer.h"

#include <QSslConfiguration>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <memory>

namespace test
{

/**
 * The built library in a host, before the development catalog over HTTPS, in a current directory of its own.
 * The steps of a user wait for their outcome.
 *
 * Made in init() and destroyed in cleanup() (see FatalWarnings).
 */
class ScenarioFixture
{
public:
    /// Starts the catalog and loads the library.
    ScenarioFixture();
    ~ScenarioFixture();
    ScenarioFixture(const ScenarioFixture&) = delete;
    ScenarioFixture& operator=(const ScenarioFixture&) = delete;

    const devcatalog::CatalogServer& server() const { return m_server; }
    const devcatalog::PartCatalog& parts() const { return m_parts; }
    /// Stops the catalog, and lets the event loop turn until its last replies are out.
    void stopCatalog();
    /// Starts it again; it knows no session of before.
    void restartCatalog();
    devhost::HostApplication& host() { return *m_host; }
    ScriptedHostView& view() { return m_view; }
    const devhost::PaneUser& user() const { return m_user; }
    /// @return the texts of the message boxes so far; each was closed by its button.
    QStringList boxTexts() const;
    /// @return the names of the files in the current directory.
    static QStringList files();

    /// Connects, and waits until the add-in has its key from the catalog.
    void connect();
    /// Waits until the session has got so many replies with a text in them, or so many without any text.
    void waitForReplies(const QString& content, int count);
    /// Waits for the box with the outcome.
    void logIn();
    void searchFor(const QString& term);
    void turnToPage(const QString& page);
    /// Waits for other results than those, with their pictures.
    void waitForResults(const QStringList& others = {});
    /// Clicks a thumbnail, and waits for configuration and preview.
    void openPart(int row);
    /// Waits until a drawing was offered and is gone again.
    void clickPreview();
    void goBack();

private:
    devcatalog::CatalogServerOptions options();
    void waitFor(const std::function<bool()>& condition);

    FatalWarnings m_warnings;
    QTemporaryDir m_certificateFolder;
    QTemporaryDir m_currentFolder;
    QString m_folderBefore;
    QSslConfiguration m_tlsBefore;

    devcatalog::PartCatalog m_parts;
    devcatalog::CatalogServer m_server;
    std::unique_ptr<devcatalog::ConnectProxy> m_proxy;
    MessageBoxAnswerer m_answerer;
    ScriptedHostView m_view;
    devhost::PaneUser m_user{m_view};
    std::shared_ptr<devhost::HostApplication> m_host;
    devhost::AddInLibrary m_library;
};

} // namespace test
