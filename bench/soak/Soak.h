#pragma once

#include "bench/measuring/PaneRun.h"

namespace bench
{

/// The user's whole way, many times over: search, page, open, download, place, back, back. Prints what the
/// process holds as it goes on.
class Soak
{
public:
    /// Both must outlive this. @param run logged in, at its main panel.
    Soak(MeasuredApplication& application, PaneRun& run) : m_application(application), m_run(run) {}

    /// Prints a line for each @p linesEvery cycles.
    /// @return whether all was flat that must be: managers, replies, threads, descriptors.
    bool play(int cycles, int linesEvery);

private:
    void playCycle();
    bool report();
    bool waitUntilFlat();

    MeasuredApplication& m_application;
    PaneRun& m_run;
    int m_played = 0;
    int m_threads = 0;          ///< after the first cycles
    int m_descriptors = 0;      ///< after the first cycles
    QVector<double> m_searches; ///< milliseconds since the last line
};

} // namespace bench
