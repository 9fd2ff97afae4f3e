/// The user's whole way beside bare exchanges of the same bytes. Not a test: docs/performance.md has the
/// command and the figures.

#include "bench/measuring/CatalogProcess.h"
#include "bench/measuring/MeasuredApplication.h"
#include "bench/measuring/PaneRun.h"
#include "bench/measuring/QuietOutput.h"
#include "bench/road/BareExchanges.h"
#include "bench/road/FirstConnect.h"
#include "bench/road/RoadFigures.h"

#include <QCommandLineParser>

#include <algorithm>
#include <cstdio>
#include <random>

namespace
{

using bench::MeasuredApplication;
using bench::RoadFigures;

constexpr int WaysPerConnect = 3;
const char* const Bare = "bare";

void playWay(bench::PaneRun& run, const QString& name, RoadFigures& figures)
{
    figures.add("search to five pictures", name, run.search("bolt"));
    run.settle();
    figures.add("open a part", name, run.openPart(0));
    run.settle();
    figures.add("download and placement", name, run.download());
    run.settle();
    run.backToResults();
    run.settle();
    run.backToMainPanel();
    run.settle();
}

/// Connects, goes the way a few times, disconnects and unloads.
void playLibrary(MeasuredApplication& application, const QString& library, RoadFigures& figures)
{
    figures.add("first connect to shown", library, bench::measureFirstConnect(library));
    bench::PaneRun run(application, library);
    figures.add("later connect to shown", library, run.connect());
    run.settle();
    run.logIn();
    application.resetLongestEvent();
    for (int i = 0; i < WaysPerConnect; ++i)
        playWay(run, library, figures);
    const MeasuredApplication::LongestEvent& longest = application.longestEvent();
    figures.add("longest event", library, {longest.threadTime, longest.wallTime});
}

void playBare(bench::BareExchanges& bare, RoadFigures& figures)
{
    for (int i = 0; i < WaysPerConnect; ++i) {
        figures.add("search to five pictures", Bare, bare.search());
        figures.add("open a part", Bare, bare.openPart());
        figures.add("download and placement", Bare, bare.download());
    }
}

/// In mixed order, so that what else the machine does falls on all alike.
RoadFigures measure(MeasuredApplication& application, const bench::CatalogProcess& catalog,
                    const QStringList& libraries, int rounds)
{
    RoadFigures warmUp;
    for (const QString& library : libraries)
        playLibrary(application, library, warmUp);
    bench::BareExchanges bare(catalog);
    playBare(bare, warmUp);

    RoadFigures figures;
    std::mt19937 generator; // the same order in every run
    QStringList order = QStringList(libraries) << Bare;
    for (int round = 0; round < rounds; ++round) {
        std::shuffle(order.begin(), order.end(), generator);
        for (const QString& who : order)
            if (who == Bare)
                playBare(bare, figures);
            else
                playLibrary(application, who, figures);
    }
    return figures;
}

} // namespace

int main(int argc, char** argv)
{
    if (bench::CatalogProcess::serveIfAsked(argc, argv))
        return 0;
    bench::quietOutput();
    if (bench::connectIfAsked(argc, argv))
        return 0;
    MeasuredApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({
        {"library", "The add-in to load; may be given several times, to compare.", "file", ROAD_LIBRARY},
        {"service-host", "What the libraries were built for.", "host:port", ROAD_SERVICE_HOST},
        {"rounds", "How often to connect each library, and to go the way three times.", "n", "30"},
    });
    parser.process(application);

    bench::CatalogProcess catalog;
    if (!catalog.start(parser.value("service-host")))
        return 2;
    const QStringList libraries = parser.values("library");
    for (int i = 0; i < libraries.size(); ++i)
        std::printf("library %d: %s\n", i + 1, qPrintable(libraries[i]));
    measure(application, catalog, libraries, parser.value("rounds").toInt()).print(libraries);
    return 0;
}
