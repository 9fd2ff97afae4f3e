#pragma once

#include <vector>

namespace devcatalog
{

struct Interval {
    double from = 0.0;
    double to = 0.0;
};

/// Parts of a line or circle, by a coordinate along it.
class IntervalSet
{
public:
    void add(double from, double to) { m_intervals.push_back({from, to}); }
    bool empty() const { return m_intervals.empty(); }

    /// @return the parts, ascending, overlapping and touching ones joined.
    /// @param tolerance gaps and parts shorter than this do not count.
    std::vector<Interval> joined(double tolerance) const;

    /// @return what is left without the parts of another set.
    IntervalSet without(const IntervalSet& other, double tolerance) const;

private:
    std::vector<Interval> m_intervals;
};

} // namespace devcatalog
