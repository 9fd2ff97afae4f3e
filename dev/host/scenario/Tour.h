#pragma once

#include "dev/host/Options.h"
#include "dev/host/scenario/HostSteps.h"
#include "dev/host/scenario/PaneSteps.h"
#include "dev/host/scenario/PlacementSteps.h"
#include "dev/host/scenario/ScenarioRunner.h"
#include "dev/host/scenario/Screenshots.h"

namespace devhost
{

class AddInSession;
class MainWindow;

/// Plays a whole scenario through the add-in by mouse and key events, from its connection to its unload.
///
/// It prints a line for each step with what was seen, and saves a picture of it. Meanwhile the process has an
/// empty current directory of its own, for that is where the add-in puts the drawings that it downloads.
class Tour
{
public:
    /// @param window shown. @param session not started yet. Both must outlive the tour.
    Tour(MainWindow& window, AddInSession& session, const Options& options);

    /// @return whether everything was seen that is to be seen.
    bool run();

private:
    bool playInOwnDirectory();
    Scenario scenario() const;

    AddInSession& m_session;
    MainWindow& m_window;
    Options m_options;
    HostSteps m_host;
    PaneSteps m_pane;
    PlacementSteps m_placement;
    Screenshots m_screenshots;
    ScenarioRunner m_player;
};

} // namespace devhost
