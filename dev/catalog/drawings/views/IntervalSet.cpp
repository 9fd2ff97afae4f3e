#include "dev/catalog/drawings/views/IntervalSet.h"

#include <algorithm>

namespace devcatalog
{

std::vector<Interval> IntervalSet::joined(double tolerance) const
{
    std::vector<Interval> sorted = m_intervals;
    std::sort(sorted.begin(), sorted.end(),
              [](const Interval& a, const Interval& b) { return a.from < b.from; });
    std::vector<Interval> result;
    for (const Interval& interval : sorted)
        if (!result.empty() && interval.from <= result.back().to + tolerance)
            result.back().to = std::max(result.back().to, interval.to);
        else
            result.push_back(interval);
    result.erase(
        std::remove_if(result.begin(), result.end(),
                       [tolerance](const Interval& each) { return each.to - each.from < tolerance; }),
        result.end());
    return result;
}

IntervalSet IntervalSet::without(const IntervalSet& other, double tolerance) const
{
    IntervalSet result;
    const std::vector<Interval> gaps = other.joined(tolerance);
    for (const Interval& interval : joined(tolerance)) {
        double from = interval.from;
        for (const Interval& gap : gaps) {
            if (gap.to <= from || gap.from >= interval.to)
                continue;
            if (gap.from > from)
                result.add(from, gap.from);
            from = std::max(from, gap.to);
        }
        if (from < interval.to)
            result.add(from, interval.to);
    }
    return result;
}

} // namespace devcatalog
