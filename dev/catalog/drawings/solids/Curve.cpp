#include "dev/catalog/drawings/solids/Curve.h"

#include <algorithm>
#include <cmath>

namespace devcatalog
{

namespace
{

constexpr double sampleAngle = pi / 36;

/// The segment of a path that a parameter falls in.
std::size_t segmentAt(const PathCurve& path, double t)
{
    const std::size_t last = path.points.size() - 2;
    return std::min(last, static_cast<std::size_t>(std::max(0.0, t * static_cast<double>(last + 1))));
}

struct Point {
    double t;

    Vector3 operator()(const LineCurve& line) const { return line.from + t * (line.to - line.from); }

    Vector3 operator()(const ArcCurve& arc) const
    {
        const double angle = arc.from + t * arc.sweep();
        return arc.centre + std::cos(angle) * arc.u + std::sin(angle) * arc.v;
    }

    Vector3 operator()(const PathCurve& path) const
    {
        const std::size_t i = segmentAt(path, t);
        const double fraction = t * static_cast<double>(path.points.size() - 1) - static_cast<double>(i);
        return path.points[i] + fraction * (path.points[i + 1] - path.points[i]);
    }
};

struct Derivative {
    double t;

    Vector3 operator()(const LineCurve& line) const { return line.to - line.from; }

    Vector3 operator()(const ArcCurve& arc) const
    {
        const double angle = arc.from + t * arc.sweep();
        return arc.sweep() * (std::cos(angle) * arc.v - std::sin(angle) * arc.u);
    }

    Vector3 operator()(const PathCurve& path) const
    {
        const std::size_t i = segmentAt(path, t);
        return static_cast<double>(path.points.size() - 1) * (path.points[i + 1] - path.points[i]);
    }
};

struct Portion {
    double from;
    double to;

    Curve operator()(const LineCurve& line) const { return LineCurve{Point{from}(line), Point{to}(line)}; }

    Curve operator()(const ArcCurve& arc) const
    {
        ArcCurve result = arc;
        result.from = arc.from + from * arc.sweep();
        result.to = arc.from + to * arc.sweep();
        return result;
    }

    Curve operator()(const PathCurve& path) const
    {
        const double segments = static_cast<double>(path.points.size() - 1);
        PathCurve result{{Point{from}(path)}};
        for (std::size_t i = segmentAt(path, from) + 1; static_cast<double>(i) < to * segments - 1e-9; ++i)
            if (static_cast<double>(i) > from * segments + 1e-9)
                result.points.push_back(path.points[i]);
        result.points.push_back(Point{to}(path));
        return result;
    }
};

struct SampleCount {
    std::size_t operator()(const LineCurve&) const { return 1; }

    std::size_t operator()(const ArcCurve& arc) const
    {
        return static_cast<std::size_t>(std::max(4.0, std::ceil(std::abs(arc.sweep()) / sampleAngle)));
    }

    std::size_t operator()(const PathCurve& path) const { return path.points.size() - 1; }
};

} // namespace

ArcCurve circleAround(const Frame& frame, double radius, double z)
{
    return {frame.point(0, 0, z), radius * frame.x, radius * frame.y};
}

Vector3 pointAt(const Curve& curve, double t)
{
    return std::visit(Point{t}, curve);
}

Vector3 derivativeAt(const Curve& curve, double t)
{
    return std::visit(Derivative{t}, curve);
}

Curve portion(const Curve& curve, double from, double to)
{
    return std::visit(Portion{from, to}, curve);
}

std::vector<double> samplesOf(const Curve& curve)
{
    const std::size_t count = std::visit(SampleCount{}, curve);
    std::vector<double> samples;
    for (std::size_t i = 0; i <= count; ++i)
        samples.push_back(static_cast<double>(i) / static_cast<double>(count));
    return samples;
}

} // namespace devcatalog
