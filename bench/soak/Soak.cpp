#include "bench/soak/Soak.h"

#include "bench/measuring/ProcessFigures.h"

#include <QElapsedTimer>
#include <QPixmapCache>

#include <algorithm>
#include <cstdio>

namespace bench
{

namespace
{

constexpr int WarmUpCycles = 5;
constexpr double Million = 1e6;

double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.value(values.size() / 2);
}

} // namespace

bool Soak::play(int cycles, int linesEvery)
{
    for (int i = 0; i < WarmUpCycles; ++i)
        playCycle();
    const ProcessFigures start = processFigures();
    m_threads = start.threads;
    m_descriptors = start.descriptors;
    m_searches.clear();
    m_application.resetLongestEvent();
    std::printf(
        " cycle  widgets  managers  replies  threads  descriptors  heap MB  search ms  longest event ms\n");

    bool flat = true;
    for (int i = 1; i <= cycles; ++i) {
        playCycle();
        if (i % linesEvery == 0 || i == cycles)
            flat = report() && flat;
    }
    return flat;
}

void Soak::playCycle()
{
    // The page that was looked at last outlives its search.
    const QString otherPage = m_played++ % 2 == 0 ? "2" : "1";
    m_searches.append(double(m_run.search("bolt").threadTime) / Million);
    m_run.turnToPage(otherPage);
    m_run.openPart(0);
    m_run.download();
    m_run.backToResults();
    m_run.backToMainPanel();
    m_run.settle();
}

bool Soak::report()
{
    m_run.forgetHostRecords();
    const bool flat = waitUntilFlat();
    QPixmapCache::clear(); // it fills up to its limit, whatever the pages do
    const ProcessFigures now = processFigures();
    const auto& longest = m_application.longestEvent();
    std::printf("%6d %8d %9d %8d %8d %12d %8.1f %10.1f %7.1f (%.1f wall, %s)%s\n", m_played - WarmUpCycles,
                QApplication::allWidgets().size(), m_application.managers(), m_application.replies(),
                now.threads, now.descriptors, double(now.heap) / Million, median(m_searches),
                double(longest.threadTime) / Million, double(longest.wallTime) / Million,
                longest.name.constData(), flat ? "" : "  GROWN");
    std::fflush(stdout);
    m_searches.clear();
    m_application.resetLongestEvent();
    return flat;
}

/// A thread or a connection may take a moment longer than the reply it was for.
bool Soak::waitUntilFlat()
{
    constexpr int patience = 5000; // Milliseconds.
    const auto isFlat = [this] {
        const ProcessFigures now = processFigures();
        return m_application.managers() == 0 && m_application.replies() == 0 && now.threads <= m_threads &&
               now.descriptors <= m_descriptors;
    };
    QElapsedTimer clock;
    clock.start();
    while (!isFlat() && clock.elapsed() < patience)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    return isFlat();
}

} // namespace bench
