#include "bench/soak/PageRush.h"

#include "bench/measuring/ProcessFigures.h"

#include <algorithm>
#include <cstdio>

namespace bench
{

namespace
{

constexpr int Pages = 5;
constexpr double Million = 1e6;

int pageOf(int click)
{
    return 1 + click % Pages;
}

} // namespace

bool PageRush::play(int clicks)
{
    const QStringList wanted = namesOfPage(pageOf(clicks - 1));
    namesOfPage(pageOf(clicks));
    const int requestsBefore = m_application.requests();
    const int finishedBefore = m_application.finishedRequests();
    m_application.resetLongestEvent();
    m_peakThreads = m_peakDescriptors = 0;
    rush(clicks);

    const bool isRight = m_run.user().rowNames() == wanted && m_run.user().hasPictures();
    const bool isClean = m_application.managers() == 0 && m_application.replies() == 0;
    const int requests = m_application.requests() - requestsBefore;
    const int finished = m_application.finishedRequests() - finishedBefore;
    const auto& longest = m_application.longestEvent();
    std::printf("%d page changes in a second: %s shown in the end\n"
                "%d requests: %d answered, %d taken back; %d managers and %d replies left\n"
                "longest event %.1f ms of processor time (%s), %.1f ms on the clock\n"
                "at the peak %d threads, %d descriptors\n",
                clicks, isRight ? "the last page" : "ANOTHER PAGE", requests, finished, requests - finished,
                m_application.managers(), m_application.replies(), double(longest.threadTime) / Million,
                longest.name.constData(), double(longest.wallTime) / Million, m_peakThreads,
                m_peakDescriptors);
    return isRight && isClean;
}

QStringList PageRush::namesOfPage(int number)
{
    m_run.user().turnToPage(QString::number(number));
    m_run.settle();
    return m_run.user().rowNames();
}

void PageRush::rush(int clicks)
{
    int clicked = 0;
    QTimer clicking;
    QObject::connect(&clicking, &QTimer::timeout, &clicking, [&] {
        m_run.user().turnToPage(QString::number(pageOf(clicked)));
        if (++clicked == clicks)
            clicking.stop();
        notePeak();
    });
    clicking.setTimerType(Qt::PreciseTimer);
    clicking.start(1000 / clicks);
    m_run.waitFor("the last click", [&] { return clicked == clicks; });
    m_run.waitFor("the last picture", [this] {
        notePeak();
        return m_application.requests() == m_application.finishedRequests() || m_application.managers() == 0;
    });
    m_run.settle();
}

void PageRush::notePeak()
{
    const ProcessFigures now = processFigures();
    m_peakThreads = std::max(m_peakThreads, now.threads);
    m_peakDescriptors = std::max(m_peakDescriptors, now.descriptors);
}

} // namespace bench
