#include "bench/measuring/Steps.h"

#include "bench/measuring/ProcessFigures.h"

#include <QCoreApplication>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

namespace bench
{

namespace
{

constexpr int Patience = 60000; // Milliseconds.

} // namespace

qint64 waitFor(const char* what, const std::function<bool()>& condition)
{
    qint64 lookingTime = 0;
    const auto isMet = [&] {
        const qint64 before = threadTime();
        const bool met = condition();
        lookingTime += threadTime() - before;
        return met;
    };
    QTimer deadline;
    deadline.setSingleShot(true);
    deadline.start(Patience);
    while (!isMet()) {
        if (!deadline.isActive())
            giveUp(QString("This never came: ") + what);
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return lookingTime;
}

StepTime measureStep(const char* what, const std::function<void()>& act, const std::function<bool()>& isDone)
{
    QElapsedTimer clock;
    clock.start();
    const qint64 before = threadTime();
    act();
    const qint64 lookingTime = waitFor(what, isDone);
    QCoreApplication::processEvents(); // what the outcome has still to paint
    return {threadTime() - before - lookingTime, clock.nsecsElapsed()};
}

void giveUp(const QString& problem)
{
    std::fprintf(stderr, "%s\n", qPrintable(problem));
    std::exit(2);
}

} // namespace bench
