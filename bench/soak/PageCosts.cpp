#include "bench/soak/PageCosts.h"

#include "bench/measuring/ProcessFigures.h"

#include <QPixmapCache>

namespace bench
{

namespace
{

constexpr const char* Term = "bolt";

qint64 settledHeap(PaneRun& run)
{
    run.settle();
    run.forgetHostRecords();
    QPixmapCache::clear(); // it fills up to its limit, whatever the pages do
    return processFigures().heap;
}

/// @return the growth of the heap by one repetition, in bytes.
double growth(PaneRun& run, int repetitions, const std::function<void()>& transition)
{
    transition();
    const qint64 before = settledHeap(run);
    for (int i = 0; i < repetitions; ++i)
        transition();
    return double(settledHeap(run) - before) / repetitions;
}

/// Back from the page that was left leaves one more main panel.
void leaveMainPanel(PaneRun& run, QWidget* leftResultsPage)
{
    run.user().page()->hide();
    QMetaObject::invokeMethod(leftResultsPage, "OnBackButtonClick");
    run.settle();
}

} // namespace

PageCosts measurePageCosts(PaneRun& run, int repetitions)
{
    const double searchAndBack = growth(run, repetitions, [&run] {
        run.search(Term);
        run.backToMainPanel();
        run.settle();
    });

    run.search(Term);
    run.settle();
    QWidget* const leftResultsPage = run.user().page();
    const double openAndBack = growth(run, repetitions, [&run] {
        run.openPart(0);
        run.settle();
        run.backToResults();
        run.settle();
    });

    run.backToMainPanel();
    run.settle();
    PageCosts costs;
    costs.mainPanel = growth(run, repetitions, [&] { leaveMainPanel(run, leftResultsPage); });
    costs.resultsPage = searchAndBack - costs.mainPanel;
    costs.detailPage = openAndBack - costs.resultsPage;
    return costs;
}

} // namespace bench
