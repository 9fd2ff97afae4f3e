#pragma once

#include "bench/measuring/Steps.h"

#include <QMap>
#include <QString>
#include <QVector>

namespace bench
{

/// Times of steps by who took them; of many repetitions the median counts.
class RoadFigures
{
public:
    /// @param step for example "search".
    /// @param who a library's name, or "bare".
    void add(const QString& step, const QString& who, const StepTime& time);

    /// Prints a line for each step and kind of time: the floor, and for each of @p libraries its time and how
    /// many times the floor that is.
    void print(const QStringList& libraries) const;

private:
    using Times = QMap<QString, QVector<StepTime>>;

    void printLine(const QString& step, const QStringList& libraries, qint64 StepTime::*kind) const;

    QStringList m_steps; ///< in order of their first time
    QMap<QString, Times> m_times;
};

} // namespace bench
