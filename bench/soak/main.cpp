/// What many hours with the add-in leave behind in a host. Not a test of speed: docs/performance.md has the
/// commands and the figures.

#include "bench/measuring/CatalogProcess.h"
#include "bench/measuring/MeasuredApplication.h"
#include "bench/measuring/PaneRun.h"
#include "bench/measuring/QuietOutput.h"
#include "bench/soak/PageCosts.h"
#include "bench/soak/Soak.h"

#include <QCommandLineParser>

#include <cstdio>

namespace
{

struct Options {
    QStringList libraries;
    QString serviceHost;
    int cycles = 0;
    int lines = 0;
    int pages = 0;
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
    });
    parser.process(application);
    return {parser.values("library"), parser.value("service-host"), parser.value("cycles").toInt(),
            qMax(1, parser.value("lines-every").toInt()), parser.value("pages").toInt()};
}

bool soak(bench::MeasuredApplication& application, const Options& options, const QString& library)
{
    std::printf("%s\n", qPrintable(library));
    bench::PaneRun run(application, library);
    run.connect();
    run.settle();
    run.logIn();
    if (options.pages > 0) {
        const bench::PageCosts costs = bench::measurePageCosts(run, options.pages);
        std::printf("a hidden page keeps: results page %.0f KB, detail page %.0f KB, main panel %.0f KB\n",
                    costs.resultsPage / 1000, costs.detailPage / 1000, costs.mainPanel / 1000);
    }
    return bench::Soak(application, run).play(options.cycles, options.lines);
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
    if (!catalog.start(options.serviceHost))
        return 2;
    bool flat = true;
    for (const QString& library : options.libraries)
        flat = soak(application, options, library) && flat;
    return flat ? 0 : 1;
}
