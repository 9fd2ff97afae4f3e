#pragma once

#include <QtGlobal>

namespace bench
{

/// What this process holds at a moment. A figure that the platform does not tell is 0.
struct ProcessFigures {
    int threads = 0;
    int descriptors = 0;
    qint64 heap = 0; ///< bytes allocated and not freed
};

ProcessFigures processFigures();

/// @return the processor time of the calling thread so far, in nanoseconds; elsewhere the time of day.
qint64 threadTime();

/// Lets this process run only where no other one wants the processors; called before there are other threads.
void yieldToOtherProcesses();

} // namespace bench
