#include "devhost/tour/ShortRoad.h"

#include "devhost/Options.h"
#include "devhost/tour/HostSteps.h"
#include "devhost/tour/PaneSteps.h"
#include "devhost/tour/PlacementSteps.h"

namespace devhost
{

Road shortRoad(const HostSteps& host, const PaneSteps& pane, const PlacementSteps& placement,
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
        pane.goBackToResults(),
        placement.lookAtDrawing(1),
    };
}

} // namespace devhost
