#pragma once

#include "devhost/tour/PanePages.h"
#include "devhost/tour/TourStep.h"

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
    /// Outcome: the pane is shown or hidden.
    TourStep runCommand(bool showsPane) const;
    /// Outcome: the host was asked for the add-in's help.
    TourStep openHelp() const;
    /// Outcome: the host knows the command no more.
    TourStep missCommand() const;

private:
    QString typeCommand() const;

    MainWindow& m_window;
    AddInSession& m_session;
    PanePages m_pages;
};

} // namespace devhost
