#include "bench/measuring/ProcessFigures.h"

#include <ctime>
#include <filesystem>
#include <iterator>
#include <malloc.h>
#include <sys/resource.h>

namespace bench
{

namespace
{

int entriesOf(const char* folder)
{
    const std::filesystem::directory_iterator entries(folder);
    return static_cast<int>(std::distance(begin(entries), end(entries)));
}

/// Small blocks and those that have a mapping of their own, such as pictures.
qint64 heapInUse()
{
#if __GLIBC_PREREQ(2, 33)
    const auto heap = mallinfo2();
    return static_cast<qint64>(heap.uordblks) + static_cast<qint64>(heap.hblkhd);
#else
    return 0;
#endif
}

} // namespace

ProcessFigures processFigures()
{
    return {entriesOf("/proc/self/task"), entriesOf("/proc/self/fd") - 1, heapInUse()};
}

qint64 threadTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return qint64{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

void yieldToOtherProcesses()
{
    setpriority(PRIO_PROCESS, 0, PRIO_MAX); // what is refused leaves the process as it is
}

} // namespace bench
