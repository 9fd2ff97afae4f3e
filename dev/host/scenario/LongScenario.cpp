#include "dev/host/scenario/LongScenario.h"

#include "dev/host/Options.h"
#include "dev/host/scenario/HostSteps.h"
#include "dev/host/scenario/PaneSteps.h"
#include "dev/host/scenario/PlacementSteps.h"

namespace devhost
{

namespace
{

Scenario start(const HostSteps& host, const PaneSteps& pane, const Options& options)
{
    return {
        host.connectAddIn(),
        host.runCommand(false),
        host.runCommand(true),
        host.openRibbonTab(),
        host.clickRibbonButton(false),
        host.openMenu(),
        host.chooseMenuEntry(true),

        pane.typeEmail(options.accountUser),
        pane.typePassword("not " + options.accountPassword),
        pane.failToLogIn(),
        pane.typePassword(options.accountPassword),
        pane.logIn(),
        pane.openBrowsing(),
    };
}

/// One part is placed twice, in two views.
Scenario firstSearch(const PaneSteps& pane, const PlacementSteps& placement, const QString& term)
{
    const QPointF upper(0.15, 0.3);
    const QPointF lower(0.15, 0.7);
    return {
        pane.typeTerm(term),
        pane.pressReturn(),
        pane.turnPage("2"),
        pane.turnPage(">"),
        pane.turnPage("<"),

        pane.openResult(0),
        pane.goBackToResults(),
        pane.openResult(2),
        pane.openViews(),
        pane.chooseView(" Front"),
        placement.clickPreview("0.dwg"),
        placement.steerBlock(upper),
        placement.placeBlock(upper),
        pane.openViews(),
        pane.chooseView(" Top"),
        placement.clickPreview("1.dwg"),
        placement.steerBlock(lower),
        placement.placeBlock(lower),

        pane.goBackToResults(),
        pane.turnPage("1"),
        pane.goBackToSearch(),
    };
}

/// The user does not wait for pages, and thinks better of a placement.
Scenario secondSearch(const PaneSteps& pane, const PlacementSteps& placement, const QString& term)
{
    return {
        pane.typeTerm(term),
        pane.clickSearch(),
        pane.turnPages({"2", "3", "2"}),
        pane.openResultWhileTurning(1, "1"),
        placement.clickPreview("2.dwg"),
        placement.steerBlock(QPointF(0.6, 0.5)),
        placement.cancelPlacement(),
        pane.goBackToResults(),
        pane.goBackToSearch(),
    };
}

/// The user goes on from page 5, where the page buttons get other numbers.
Scenario thirdSearch(const PaneSteps& pane, const QString& term)
{
    return {
        pane.typeTerm(term), pane.pressReturn(), pane.turnPage("5"), pane.turnPage(">"),
        pane.turnPage("7"),  pane.turnPage("1"), pane.openResult(3), pane.goBackToResults(),
    };
}

} // namespace

Scenario longScenario(const HostSteps& host, const PaneSteps& pane, const PlacementSteps& placement,
                      const Options& options)
{
    const QStringList terms = options.searchTerms;
    const auto term = [&](int index) { return terms.at(index % terms.size()); };
    return start(host, pane, options) + firstSearch(pane, placement, term(0)) +
           secondSearch(pane, placement, term(1)) + thirdSearch(pane, term(2)) +
           Scenario{placement.lookAtDrawing(2)};
}

} // namespace devhost
