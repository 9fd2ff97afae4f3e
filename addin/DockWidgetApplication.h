#pragma once

#include "addin/Export.h"

#include <QPointer>

#include <pvInterface/pvApplication_c.h>
#include <pvInterface/pvCommandEvents_c.h>
#include <pvInterface/pvCustomPropertyControl_c.h>
#include <pvInterface/pvInterfacePtr.h>
#include <pvLibrary/pvString.h>

class LogInPage;
class QTabWidget;
class QTranslator;
class pvCommand_c;

DOCKWIDGET_EXPORTED_CLASS_BEGIN
/// The connected add-in: its registrations with the host, its pane and its translator, and the sink of the
/// command's event. The entry points make one per connection.
class DOCKWIDGET_API DockWidgetApplication final : public pvCommandEvents_c
{
public:
    /// @param application the host; the object keeps a reference of its own. May be null.
    explicit DockWidgetApplication(pvApplication_c* application);
    /// Copies field by field. The add-in makes no copies: each would destroy the pane at its end.
    DockWidgetApplication(const DockWidgetApplication& other);
    /// Destroys the pane, and with it every widget of the add-in, also in a host that keeps its pane.
    ~DockWidgetApplication();
    DockWidgetApplication& operator=(const DockWidgetApplication& other);

    /// The command was run: shows the pane if the host says it is hidden, else hides it. @return true.
    bool ExecuteNotify() override;
    /// What the host calls on the command's event. @param context the registered pvCommandEvents_c.
    static bool ExecuteNotifyHook(void* context);

    /// @return a handle of its own on the host.
    pvInterfacePtr<pvApplication_c> GetPVApp();
    /// @return null: nothing assigns it.
    static LogInPage* GetLogInPage();

    /// Registers the command and, unless that fails, its event, user command, menu entry and ribbon button.
    /// @return true.
    bool CreateUserInterfaceAndCommands();
    /// Inserts a ribbon button into every row that is meant for imports.
    /// @param rowName not used: rows are found by their API identifier.
    void AddRibbonItem(const pvString& rowName, const pvString& caption, const pvString& userCommandID);
    /// Removes the add-in's ribbon buttons from those rows.
    void RemoveRibbonRowItem();

    /// Docks the pane and builds the add-in's user interface in it.
    /// @return false when the host gives no pane, or no widget for it.
    bool createDockWidget();

    /// Sets Qt's default locale to the host's language and installs its translation; an unknown
    /// language leaves the locale and installs an empty translator.
    void LoadTranslator();
    /// Takes the translator out and deletes it. The locale stays.
    void unLoadTranslator();

    /// The add-in's identifier, which every registration with the host carries.
    static const pvString appID;

private:
    static LogInPage* m_LogInPage;

    QPointer<QTabWidget> m_tabWidget; ///< Child of the pane's widget, which the host may delete at any time.
    bool m_visible = false;
    pvInterfacePtr<pvApplication_c> m_app;
    pvInterfacePtr<pvCustomPropertyControl_c> m_customPropertyControl;
    pvCommand_c* m_command = nullptr;
    QTranslator* m_translator = nullptr;
};
DOCKWIDGET_EXPORTED_CLASS_END
