#pragma once

#include "dev/host/model/AddInLibrary.h"
#include "dev/host/model/HostApplication.h"
#include "tests/host/ScriptedHostView.h"
#include "tests/support/FatalWarnings.h"
#include "tests/support/MessageBoxAnswerer.h"
#include "tests/support/ScriptedCatalog.h"
#include "tests/support/WaitUntil.h"

#include <QStringList>
#include <QWidget>

#include <memory>

namespace test
{

/**
 * The built library, freshly loaded into a host: its values start anew with each. The host has menus and a
 * ribbon with others before and after those meant for imports, and an import row that holds a button of the
 * host's and one of another add-in. The catalog refuses connections; nothing reaches it before the event loop
 * turns.
 *
 * Made in init(); cleanup() compares leave() with an empty list and destroys it (see FatalWarnings).
 */
class LoadedAddIn
{
public:
    LoadedAddIn();
    LoadedAddIn(const LoadedAddIn&) = delete;
    LoadedAddIn& operator=(const LoadedAddIn&) = delete;

    FatalWarnings& warnings() { return m_warnings; }
    MessageBoxAnswerer& answerer() { return m_answerer; }
    ScriptedCatalog& catalog() { return m_catalog; }
    ScriptedHostView& view() { return m_view; }
    devhost::HostApplication& host() { return *m_host; }
    devhost::AddInLibrary& library() { return m_library; }

    bool connect() { return m_library.connect(m_host.get()); }
    bool disconnect() { return m_library.disconnect(); }
    /// Has the catalog answer all that a user's way to a placed drawing asks for: one hit, and every text is
    /// "text".
    /// @param held key of the one reply of which the service sends only the first bytes; empty for none.
    void openCatalog(const QString& held = QString());
    /// Disconnects and unloads. @return what is left of the add-in: references, widgets, the library itself.
    QStringList leave();

    /// @return the host calls since the last time.
    QStringList takeCalls();
    /// @return what stands registered in the host for the add-in, a line each.
    QStringList registrations() const;

    /// @return the pane's only descendant of that class and object name that its page shows; null for none.
    template <class Widget = QWidget>
    Widget* shown(const char* className, const QString& name = QString()) const
    {
        return static_cast<Widget*>(findShown(className, name));
    }

private:
    QWidget* findShown(const char* className, const QString& name) const;
    void addInterface();

    FatalWarnings m_warnings;
    ScriptedCatalog m_catalog;
    MessageBoxAnswerer m_answerer;
    ScriptedHostView m_view;
    std::shared_ptr<devhost::HostApplication> m_host;
    int m_widgetsBefore;
    devhost::AddInLibrary m_library;
};

/// The add-in's identifier, with which it registers everything.
extern const QString AddInIdentifier;

} // namespace test
