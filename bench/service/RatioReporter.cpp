#include "bench/service/RatioReporter.h"

#include <algorithm>
#include <cstdio>

namespace
{

double median(std::vector<double> times)
{
    if (times.empty())
        return 0;
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

} // namespace

bool RatioReporter::ReportContext(const Context& context)
{
    PrintBasicContext(&GetErrorStream(), context);
    return true;
}

void RatioReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Iteration)
            continue;
        const std::string full = run.run_name.function_name;
        const auto slash = full.rfind('/');
        Pair& pair = m_pairs[full.substr(0, slash)];
        auto& times = full.substr(slash + 1) == "ours" ? pair.ours : pair.floor;
        times.push_back(run.cpu_accumulated_time * 1e6 / static_cast<double>(run.iterations));
    }
}

void RatioReporter::Finalize()
{
    std::printf("%-42s %12s %12s %7s\n", "", "ours, us", "floor, us", "ratio");
    for (const auto& [name, pair] : m_pairs) {
        const double ours = median(pair.ours);
        const double floor = median(pair.floor);
        std::printf("%-42s %12.1f %12.1f %7.3f\n", name.c_str(), ours, floor, ours / floor);
    }
}
