// DockWidgetApplication: the command, its menu entry and its ribbon buttons.

#include "addin/DockWidgetApplication.h"
#include "common/DarkTheme.h"
#include "common/HostString.h"

#include <QObject>

#include <pvInterface/pvCommand_c.h>
#include <pvInterface/pvMenuItem_c.h>
#include <pvInterface/pvRibbonCommandButton_c.h>
#include <pvInterface/pvRibbonPanel_c.h>
#include <pvInterface/pvRibbonRow_c.h>
#include <pvInterface/pvRibbonTab_c.h>
#include <pvInterface/pvUserCommand_c.h>
#include <pvInterface/pvWorkspace_c.h>
#include <pvLibrary/pvObjectPtrArray.h>

namespace
{

const wchar_t* const CommandName = L"3DPH";

// The host's names for these values are not known; its documentation gives the numbers.
constexpr auto CommandExecuted = static_cast<pvCommandEvent_id_e>(1);
constexpr auto UIState = static_cast<pvUIState_e>(2);
constexpr auto MenuEntry = static_cast<pvMenuItemType_e>(2);
constexpr long MenuPosition = 3;
constexpr auto RibbonButtonStyle = static_cast<pvRibbonButtonStyle_e>(1);

QString commandCaption()
{
    return QObject::tr("3DPH");
}

/// The icon of the theme as first read in the process.
pvString commandIcon()
{
    return g_darkMode == 0 ? pvString(L":/3DPH/Resource/3DPH_32x-32.svg")
                           : pvString(L":/3DPH/Resource/Dark/3DPH-32.svg");
}

pvString createUserCommand(pvApplication_c* application)
{
    const pvString icon = commandIcon();
    pvCreateCommandError_e error = pvCreateCommand_Succeeded;
    pvUserCommand_c* userCommand = nullptr;
    application->CreateUserCommand(DockWidgetApplication::appID, CommandName, L"^C^C3DPH",
                                   toPVString(QObject::tr("3DPH : 3DPH")), icon, icon, UIState, &error,
                                   &userCommand);
    pvString id;
    if (userCommand != nullptr)
        userCommand->GetID(&id);
    return id;
}

/// The menu for imports or, where the host has none, its last one; null without any menu.
pvMenuItem_c* findMenu(pvApplication_c* application)
{
    pvObjectPtrArray menus;
    application->GetMenuItems(UIState, &menus);
    pvMenuItem_c* last = nullptr;
    for (int i = 0; i < menus.getSize(); ++i) {
        auto* menu = dynamic_cast<pvMenuItem_c*>(menus[i]);
        if (menu == nullptr)
            continue;
        last = menu;
        pvString id;
        menu->GetID(&id);
        if (id.Compare(L"ID_Import") == 0)
            break;
    }
    return last;
}

void insertMenuEntry(pvApplication_c* application, const pvString& userCommandID)
{
    pvMenuItem_c* menu = findMenu(application);
    pvMenuItem_c* entry = nullptr;
    if (menu != nullptr)
        menu->InsertMenuItem(DockWidgetApplication::appID, MenuEntry, MenuPosition,
                             toPVString(commandCaption()), userCommandID, &entry);
}

template <class T>
bool hasApiID(T* item, const pvString& wanted)
{
    pvString id;
    item->GetApiID(&id);
    return id.Compare(wanted) == 0;
}

/// Whether a walk through the ribbon reads the names of what it passes. Nothing uses them; hosts see them
/// read when a button is inserted, and not when it is removed.
enum class RibbonNames { Read, Unread };

/// Calls @p visit with each tab or panel of a list that carries an API identifier; null entries are skipped.
template <class T, class Visit>
void forEachWithApiID(const pvObjectPtrArray& items, const pvString& wanted, RibbonNames names, Visit visit)
{
    for (int i = 0; i < items.getSize(); ++i) {
        auto* item = dynamic_cast<T*>(items[i]);
        if (item == nullptr)
            continue;
        pvString name;
        if (names == RibbonNames::Read)
            item->get_Name(&name);
        if (hasApiID(item, wanted))
            visit(item);
    }
}

pvRibbonRow_c* importRow(pvRibbonPanel_c* panel)
{
    pvRibbonRow_c* row = nullptr;
    panel->GetRibbonRow(&row);
    return row != nullptr && hasApiID(row, L"ID_ImportPANELROW") ? row : nullptr;
}

/// Calls @p visit with each ribbon row meant for imports, tab by tab and panel by panel.
template <class Visit>
void forEachImportRow(pvApplication_c* application, RibbonNames names, Visit visit)
{
    pvWorkspace_c* workspace = nullptr;
    if (application != nullptr)
        application->GetWorkspace(L"Drafting and Annotation", &workspace);
    if (workspace == nullptr)
        return;
    pvObjectPtrArray tabs;
    workspace->GetRibbonTabs(&tabs);
    forEachWithApiID<pvRibbonTab_c>(tabs, L"ID_ImportTab", names, [&](pvRibbonTab_c* tab) {
        pvObjectPtrArray panels;
        tab->GetRibbonPanels(&panels);
        forEachWithApiID<pvRibbonPanel_c>(panels, L"ID_ImportPanel", names, [&](pvRibbonPanel_c* panel) {
            if (pvRibbonRow_c* row = importRow(panel))
                visit(row);
        });
    });
}

/// Removes what carries the add-in's identifier from a snapshot of the row.
void removeOwnItems(pvRibbonRow_c* row)
{
    pvObjectPtrArray items;
    row->GetRibbonRowItems(&items);
    for (int i = 0; i < items.getSize(); ++i) {
        auto* item = dynamic_cast<pvRibbonRowItem_c*>(items[i]);
        if (item != nullptr && hasApiID(item, DockWidgetApplication::appID))
            item->Remove();
    }
}

} // namespace

bool DockWidgetApplication::CreateUserInterfaceAndCommands()
{
    if (!m_app)
        return true;
    pvCreateCommandError_e error = pvCreateCommand_Succeeded;
    m_app->CreateCommand(appID, CommandName, &error, &m_command);
    if (error != pvCreateCommand_Succeeded)
        return true;
    if (m_command != nullptr)
        m_command->RegisterEvent(CommandExecuted, static_cast<pvCommandEvents_c*>(this),
                                 reinterpret_cast<void*>(&ExecuteNotifyHook));

    const auto theme = readColourThemeOption(m_app.get());
    if (g_darkMode == DarkModeUnread && theme)
        g_darkMode = *theme;

    const pvString userCommandID = createUserCommand(m_app.get());
    insertMenuEntry(m_app.get(), userCommandID);
    AddRibbonItem(L"3DPHRibbonRow", toPVString(commandCaption()), userCommandID);
    return true;
}

void DockWidgetApplication::AddRibbonItem(const pvString& /*rowName*/, const pvString& caption,
                                          const pvString& userCommandID)
{
    forEachImportRow(m_app.get(), RibbonNames::Read, [&](pvRibbonRow_c* row) {
        pvRibbonCommandButton_c* button = nullptr;
        row->InsertRibbonCommandButton(appID, RibbonButtonStyle, caption, userCommandID, &button);
    });
}

void DockWidgetApplication::RemoveRibbonRowItem()
{
    forEachImportRow(m_app.get(), RibbonNames::Unread, removeOwnItems);
}
