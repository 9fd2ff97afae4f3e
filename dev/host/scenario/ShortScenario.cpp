#include "dev/host/scenario/ShortScenario.h"

#include "dev/host/Options.h"
#include "dev/host/scenario/HostSteps.h"
#include "dev/host/scenario/PaneSteps.h"
#include "dev/host/scenario/PlacementSteps.h"

namespace devhost
{

Scenario shortScenario(const HostSteps& host, const PaneSteps& pane, const PlacementSteps& placement,
                       const Options& options)
{
    const QPointF place(0.4, 0.55);
    return {
        host.connectAddIn(),
        host.runCommand(false),
        host.runCommand(true),
        host.openHelp(),

        pane.typeEmail(options.accountUser),
        pane.typePassword(options.accountPassword),
        pane.logIn(),

        pane.openBrowsing(),
        pane.typeTerm(options.searchTerms.constFirst()),
        pane.pressReturn(),
        pane.turnPage("2"),

        pane.openResult(1),
        pane.openViews(),
        pane.chooseView(" Front"),
        placement.clickPreview("0.dwg"),
        placement.steerBlock(place),
        placement.placeBlock(place),
        placement.undoPlacement(),
        placement.redoPlacement(),
        pane.goBackToResults(),
        placement.lookAtDrawing(1),
        host.switchTheme(),
    };
}

} // namespace devhost
