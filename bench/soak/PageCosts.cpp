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

/// Leaves a results page and the main panel that it was asked for from.
void searchAndGoBack(PaneRun& run)
{
    run.search(Term);
    run.settle();
    run.backToMainPanel();
    run.settle();
}

/// Leaves the main panel alone.
void searchAndForget(PaneRun& run)
{
    run.search(Term);
    run.settle();
    const std::unique_ptr<QWidget> resultsPage(run.user().page());
    run.backToMainPanel();
    run.settle();
}

} // namespace

PageCosts measurePageCosts(PaneRun& run, int repetitions)
{
    PageCosts costs;
    costs.mainPanel = growth(run, repetitions, [&run] { searchAndForget(run); });
    costs.resultsPage = growth(run, repetitions, [&run] { searchAndGoBack(run); }) - costs.mainPanel;

    run.search(Term);
    run.settle();
    const double openAndBack = growth(run, repetitions, [&run] {
        run.openPart(0);
        run.settle();
        run.backToResults();
        run.settle();
    });
    costs.detailPage = openAndBack - costs.resultsPage;
    run.backToMainPanel();
    run.settle();
    return costs;
}

} // namespace bench
