#pragma once

#include "bench/measuring/PaneRun.h"

#include <QMap>

namespace bench
{

/// A user who turns pages faster than the service answers: so many clicks on page buttons in a second.
class PageRush
{
public:
    /// Both must outlive this. @param run at a results page, which must have the pages one to five.
    PageRush(MeasuredApplication& application, PaneRun& run) : m_application(application), m_run(run) {}

    /// Plays it and prints how it went.
    /// @return whether the page whose reply came last is shown, and nothing is left of the others.
    bool play(int clicks);

private:
    void learnPages();
    void clickPage(int number);
    void rush(int clicks);
    bool report(int clicks) const;
    void notePeak();

    MeasuredApplication& m_application;
    PaneRun& m_run;
    QMap<int, QStringList> m_names; ///< the rows of each page
    int m_newestPage = 0;           ///< the one whose reply came last
    int m_requestsBefore = 0;
    int m_finishedBefore = 0;
    int m_peakThreads = 0;
    int m_peakDescriptors = 0;
};

} // namespace bench
