/// What many hours with the add-in leave behind in a host. Not a test of speed: docs/performance.md has the
/// commands and the figures.

#include "bench/measuring/CatalogProcess.h"
#include "bench/measuring/MeasuredApplication.h"
#include "bench/measuring/PaneRun.h"
#include "bench/measuring/QuietOutput.h"
#include "bench/soak/PageCosts.h"
#include "bench/soak/PageRush.h"
#include "bench/soak/Soak.h"

#include <QCommandLineParser>

#include <cstdio>

namespace
{

constexpr int RushDelay = 300; // Milliseconds.

struct Options {
    QStringList libraries;
    QString serviceHost;
    int cycles = 0;
    int linesEvery = 0;
    int pages = 0;
    int clicks = 0; ///< in a second, instead of the cycles; 0 for none
};

Options parse(const QCoreApplication& application)
{
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({
        {"library", "The add-in to load; may be given several times, to compare.", "file", SOAK_LIBRARY},
        {"service-host", "What the libraries were built for.", "host:port", SOAK_SERVICE_HOST},
        {"cycles", "How often to play the user's whole way.", "n", "2000"},
        {"lines-every", "Print a line for so many cycles.", "n", "100"},
        {"pages", "How often to play a transition to measure what its pages keep.", "n", "50"},
        {"rush", "Turn so many pages in a second instead, before a service that takes 300 ms.", "n"},
    });
    parser.process(application);
    return {parser.values("library"),       parser.value("service-host"),
            parser.value("cycles").toInt(), qMax(1, parser.value("lines-every").toInt()),
            parser.value("pages").toInt(),  qBound(0, parser.value("rush").toInt(), 1000)};
}

bool soak(bench::MeasuredApplication& application, const Options& options, const QString& library)
{
    bench::PaneRun run(application, library);
    run.connect();
    run.settle();
    run.logIn();
    if (options.pages > 0) {
        const bench::PageCosts costs = bench::measurePageCosts(run, options.pages);
        std::printf("a hidden page keeps: results page %.0f KB, detail page %.0f KB, main panel %.0f KB\n",
                    costs.resultsPage / 1000, costs.detailPage / 1000, costs.mainPanel / 1000);
    }
    return bench::Soak(application, run).play(options.cycles, options.linesEvery);
}

bool rush(bench::MeasuredApplication& application, const Options& options, const QString& library)
{
    bench::PaneRun run(application, library);
    run.connect();
    run.settle();
    run.user().openSearchTab();
    run.search("bolt");
    run.settle();
    return bench::PageRush(application, run).play(options.clicks);
}

} // namespace

int main(int argc, char** argv)
{
    if (bench::CatalogProcess::serveIfAsked(argc, argv))
        return 0;
    bench::quietOutput();
    bench::MeasuredApplication application(argc, argv);
    const Options options = parse(application);
    bench::CatalogProcess catalog;
    if (!catalog.start(options.serviceHost, options.clicks > 0 ? RushDelay : 0))
        return 2;
    bool isGood = true;
    for (const QString& library : options.libraries) {
        std::printf("%s\n", qPrintable(library));
        isGood = (options.clicks > 0 ? rush : soak)(application, options, library) && isGood;
    }
    return isGood ? 0 : 1;
}
