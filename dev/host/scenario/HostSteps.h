#pragma once

#include "dev/host/scenario/PanePages.h"
#include "dev/host/scenario/TourStep.h"

class QAction;
class QMenu;
class QToolButton;

namespace devhost
{

class AddInSession;
class MainWindow;

/// What a user does with the add-in in the host's window, its pages apart.
class HostSteps
{
public:
    /// Both must outlive the steps.
    HostSteps(MainWindow& window, AddInSession& session);

    /// Outcome: the pane is in the window, with two tabs.
    TourStep connectAddIn() const;
    /// By the command line. Outcome: the pane is shown or hidden.
    TourStep runCommand(bool showsPane) const;
    /// Outcome: the ribbon shows the add-in's button.
    TourStep openRibbonTab() const;
    /// Outcome: the pane is shown or hidden.
    TourStep clickRibbonButton(bool showsPane) const;
    /// Outcome: the menu with the add-in's entry is open.
    TourStep openMenu() const;
    /// Outcome: the pane is shown or hidden.
    TourStep chooseMenuEntry(bool showsPane) const;
    /// Outcome: the host was asked for the add-in's help.
    TourStep openHelp() const;
    /// By the Host menu. Outcome: the pane's texts have the other theme's colour, and a reconnect is offered.
    TourStep switchTheme() const;
    /// Outcome: pane and library are gone, and nothing of the add-in is left.
    TourStep lookForRemains(bool isUnloaded) const;
    /// Outcome: the host knows the command no more.
    TourStep missCommand() const;

private:
    QString typeCommand() const;
    Observation lookForPane(bool isToBeShown) const;
    QString userCommandId() const;
    QToolButton* ribbonButton() const;
    QAction* menuEntry() const;
    QMenu* menu() const;

    MainWindow& m_window;
    AddInSession& m_session;
    PanePages m_pages;
};

} // namespace devhost
