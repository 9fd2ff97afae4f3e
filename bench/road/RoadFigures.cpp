#include "bench/road/RoadFigures.h"

#include <algorithm>
#include <cstdio>

namespace bench
{

namespace
{

constexpr double Million = 1e6;

/// @return milliseconds; 0 when there are no times.
double median(const QVector<StepTime>& times, qint64 StepTime::*kind)
{
    QVector<qint64> sorted;
    for (const StepTime& time : times)
        sorted.append(time.*kind);
    std::sort(sorted.begin(), sorted.end());
    return double(sorted.value(sorted.size() / 2)) / Million;
}

QByteArray number(double value)
{
    return QByteArray::number(value, 'f', 2);
}

} // namespace

void RoadFigures::add(const QString& step, const QString& who, const StepTime& time)
{
    if (!m_times.contains(step))
        m_steps.append(step);
    m_times[step][who].append(time);
}

void RoadFigures::print(const QStringList& libraries) const
{
    std::printf("%-34s %8s", "milliseconds, medians", "bare");
    for (int i = 0; i < libraries.size(); ++i)
        std::printf("   library %d  ratio", i + 1);
    std::printf("\n");
    for (const QString& step : m_steps) {
        printLine(step, libraries, &StepTime::threadTime);
        printLine(step, libraries, &StepTime::wallTime);
    }
}

void RoadFigures::printLine(const QString& step, const QStringList& libraries, qint64 StepTime::*kind) const
{
    const Times& times = m_times[step];
    const double bare = median(times["bare"], kind);
    const char* const unit = kind == &StepTime::wallTime ? "wall" : "thread";
    const bool hasFloor = times.contains("bare");
    std::printf("%-26s %-7s %8s", qPrintable(step), unit, hasFloor ? number(bare).constData() : "");
    for (const QString& library : libraries) {
        const double time = median(times[library], kind);
        std::printf(" %11s %6s", number(time).constData(), hasFloor ? number(time / bare).constData() : "");
    }
    std::printf("\n");
}

} // namespace bench
