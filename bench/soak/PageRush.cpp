#include "bench/soak/PageRush.h"

#include "bench/measuring/ProcessFigures.h"

#include <QNetworkReply>
#include <QTimer>

#include <algorithm>
#include <cstdio>

namespace bench
{

namespace
{

constexpr int Pages = 5;
constexpr double Million = 1e6;

} // namespace

bool PageRush::play(int clicks)
{
    learnPages();
    m_requestsBefore = m_application.requests();
    m_finishedBefore = m_application.finishedRequests();
    m_application.resetLongestEvent();
    m_peakThreads = m_peakDescriptors = 0;
    rush(clicks);
    return report(clicks);
}

void PageRush::learnPages()
{
    for (int page = 1; page <= Pages; ++page) {
        m_run.user().turnToPage(QString::number(page));
        m_run.settle();
        m_names[page] = m_run.user().rowNames();
    }
}

void PageRush::clickPage(int number)
{
    m_run.user().turnToPage(QString::number(number));
    QNetworkAccessManager* const manager = m_application.newestManager();
    QObject::connect(manager, &QNetworkAccessManager::finished, manager, [=] { m_newestPage = number; });
}

void PageRush::rush(int clicks)
{
    int clicked = 0;
    QTimer clicking;
    clicking.setTimerType(Qt::PreciseTimer);
    QObject::connect(&clicking, &QTimer::timeout, &clicking, [&] {
        clickPage(1 + clicked % Pages);
        if (++clicked == clicks)
            clicking.stop();
    });
    clicking.start(1000 / clicks);
    const auto isDone = [&] {
        notePeak();
        return clicked == clicks && m_run.hasAllReplies() && m_run.user().hasPictures();
    };
    waitFor("the last picture", isDone);
    m_run.settle();
}

bool PageRush::report(int clicks) const
{
    const bool isRight = m_run.user().rowNames() == m_names[m_newestPage] && m_run.user().hasPictures();
    const bool isClean = m_application.managers() == 0 && m_application.replies() == 0;
    const int requests = m_application.requests() - m_requestsBefore;
    const int finished = m_application.finishedRequests() - m_finishedBefore;
    const auto& longest = m_application.longestEvent();
    std::printf("%d page changes in a second: the reply that came last, for page %d of %d, is %s\n", clicks,
                m_newestPage, 1 + (clicks - 1) % Pages, isRight ? "shown" : "NOT SHOWN");
    std::printf("%d requests: %d answered, %d ended with their rows; %d managers and %d replies left\n",
                requests, finished, requests - finished, m_application.managers(), m_application.replies());
    std::printf("longest event %.1f ms of processor time (%s), %.1f ms on the clock\n",
                double(longest.threadTime) / Million, longest.name.constData(),
                double(longest.wallTime) / Million);
    std::printf("at the peak %d threads, %d descriptors\n", m_peakThreads, m_peakDescriptors);
    return isRight && isClean;
}

void PageRush::notePeak()
{
    const ProcessFigures now = processFigures();
    m_peakThreads = std::max(m_peakThreads, now.threads);
    m_peakDescriptors = std::max(m_peakDescriptors, now.descriptors);
}

} // namespace bench
