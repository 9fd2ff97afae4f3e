#pragma once

#include "dev/catalog/proxy/ConnectProxy.h"
#include "dev/host/model/HostApplication.h"
#include "tests/host/ScriptedHostView.h"
#include "tests/support/FatalWarnings.h"
#include "tests/support/MessageBoxAnswerer.h"
#include "tests/support/ScriptedService.h"
#include "tests/support/TestCertificates.h"

#include <QPushButton>
#include <QString>
#include <QStringList>
#include <QTabWidget>
#include <QTemporaryDir>

#include <memory>

Q_DECLARE_METATYPE(test::ScriptedReply)

namespace test
{

/**
 * A pane with the main panel in its "2D" tab, a catalog service behind it and a host around it, in a current
 * directory of its own. The service answers every operation but the download of a drawing: five hits, one
 * configuration "M8", a picture of 60 x 90 pixels. The process-wide values are as at start, but with a key in
 * place.
 *
 * Made in init() and destroyed in cleanup() (see FatalWarnings).
 */
class PanelFixture
{
public:
    PanelFixture();
    ~PanelFixture();
    PanelFixture(const PanelFixture&) = delete;
    PanelFixture& operator=(const PanelFixture&) = delete;

    ScriptedService& service() { return m_service; }
    TestCertificates& certificates() { return m_certificates; }
    devcatalog::ConnectProxy& proxy() { return m_proxy; }
    FatalWarnings& warnings() { return m_warnings; }
    MessageBoxAnswerer& answerer() { return m_answerer; }
    ScriptedHostView& view() { return m_view; }
    devhost::HostApplication& host() { return *m_host; }
    QTabWidget& window() { return *m_window; }
    /// The container of the pages.
    QWidget* container() { return m_container; }
    /// Destroys the pane with all its pages, as the host does when it closes the pane.
    void closePane() { m_window.reset(); }
    bool isPaneOpen() const { return m_window != nullptr; }
    /// Closes the pane as soon as a message box is open.
    void closePaneWithNextBox();

    /// @return the visible widget of that class and object name; null unless there is exactly one.
    template <class Widget>
    Widget* shown(const QString& name = QString()) const
    {
        Widget* found = nullptr;
        for (Widget* widget : m_container->findChildren<Widget*>(name)) {
            if (!widget->isVisible())
                continue;
            if (found != nullptr)
                return nullptr;
            found = widget;
        }
        return found;
    }
    /// @return class names of the visible pages.
    QStringList shownPages() const;

    /// Types the term into the search line and presses Return.
    void searchFor(const QString& term);
    /// Clicks the visible button of that name.
    void click(const QString& button);
    /// @return what the shown results page shows in that row's cell; null for none.
    QWidget* row(int index) const;
    void clickThumbnail(int row);
    /// Searches and waits for the first page of results.
    void showResults();
    /// Clicks the thumbnail of that row and waits until the page has its configuration.
    void openPart(int row);
    /// Searches and opens the first part.
    void openFirstPart();
    /// Logs the user in and has the service make a drawing, which it serves below that path.
    void offerDrawing(const QString& path, const ScriptedReply& reply);
    void clickPreview();

    /// @return the texts of one element in all requests of an operation, oldest first.
    QStringList sent(const QString& operation, const QString& element) const;
    /// @return the texts of the message boxes so far.
    QStringList boxTexts() const;
    /// @return the names of the files in the current directory.
    QStringList files() const;

private:
    FatalWarnings m_warnings;
    TestCertificates m_certificates;
    ScriptedService m_service;
    devcatalog::ConnectProxy m_proxy;
    MessageBoxAnswerer m_answerer;
    ScriptedHostView m_view;
    std::shared_ptr<devhost::HostApplication> m_host;
    QTemporaryDir m_folder;
    QString m_folderBefore;
    std::unique_ptr<QTabWidget> m_window;
    QWidget* m_container = nullptr;
};

/// The operations' names, as the service knows them.
extern const QString SearchOperationName;
extern const QString ConfigInfoOperationName;
extern const QString ConfigParamsOperationName;
extern const QString DownloadOperationName;

/// @return the address of a path at the catalog's web site.
QString addressOf(const QString& path);

} // namespace test
