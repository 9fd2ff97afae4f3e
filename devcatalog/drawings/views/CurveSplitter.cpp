#include "devcatalog/drawings/views/CurveSplitter.h"

#include <algorithm>
#include <cmath>

namespace devcatalog
{

namespace
{

constexpr std::size_t segmentsPerStretch = 8;

Point2 minus(const Point2& a, const Point2& b)
{
    return {a.x - b.x, a.y - b.y};
}
double cross(const Point2& a, const Point2& b)
{
    return a.x * b.y - a.y * b.x;
}
double dot(const Point2& a, const Point2& b)
{
    return a.x * b.x + a.y * b.y;
}

bool apart(const Point2& lowerA, const Point2& upperA, const Point2& lowerB, const Point2& upperB, double gap)
{
    return lowerA.x > upperB.x + gap || lowerB.x > upperA.x + gap || lowerA.y > upperB.y + gap ||
           lowerB.y > upperA.y + gap;
}

Point2 lowerOf(const Point2& a, const Point2& b)
{
    return {std::min(a.x, b.x), std::min(a.y, b.y)};
}
Point2 upperOf(const Point2& a, const Point2& b)
{
    return {std::max(a.x, b.x), std::max(a.y, b.y)};
}

bool isLine(const Curve& curve)
{
    return std::holds_alternative<LineCurve>(curve);
}
bool isPath(const Curve& curve)
{
    return std::holds_alternative<PathCurve>(curve);
}

bool hasEnds(const Curve& curve)
{
    const auto* arc = std::get_if<ArcCurve>(&curve);
    return !arc || !arc->isFullCircle();
}

} // namespace

CurveSplitter::CurveSplitter(const std::vector<Curve>& curves, const Camera& camera, double tolerance)
    : m_curves(curves), m_camera(camera), m_tolerance(tolerance), m_splits(curves.size(), {0.0, 1.0})
{
    for (const Curve& curve : curves)
        m_flats.push_back(flatten(curve));
}

CurveSplitter::Flat CurveSplitter::flatten(const Curve& curve) const
{
    Flat flat;
    flat.parameters = samplesOf(curve);
    for (const double t : flat.parameters)
        flat.points.push_back(m_camera.project(pointAt(curve, t)));
    flat.lower = flat.upper = flat.points.front();
    for (std::size_t first = 0; first + 1 < flat.points.size(); first += segmentsPerStretch) {
        Stretch stretch;
        stretch.first = first;
        stretch.end = std::min(first + segmentsPerStretch, flat.points.size() - 1);
        stretch.lower = stretch.upper = flat.points[first];
        for (std::size_t i = first; i <= stretch.end; ++i) {
            stretch.lower = lowerOf(stretch.lower, flat.points[i]);
            stretch.upper = upperOf(stretch.upper, flat.points[i]);
        }
        flat.lower = lowerOf(flat.lower, stretch.lower);
        flat.upper = upperOf(flat.upper, stretch.upper);
        flat.stretches.push_back(stretch);
    }
    return flat;
}

std::vector<std::vector<double>> CurveSplitter::split()
{
    for (std::size_t i = 0; i < m_curves.size(); ++i) {
        for (std::size_t j = i + 1; j < m_curves.size(); ++j)
            if (!apart(m_flats[i].lower, m_flats[i].upper, m_flats[j].lower, m_flats[j].upper, m_tolerance))
                crossTwo(i, j);
        if (isPath(m_curves[i]))
            crossTwo(i, i);
    }
    for (std::vector<double>& splits : m_splits)
        std::sort(splits.begin(), splits.end());
    return m_splits;
}

void CurveSplitter::crossTwo(std::size_t i, std::size_t j)
{
    const Flat& one = m_flats[i];
    const Flat& other = m_flats[j];
    for (const Stretch& stretch : one.stretches)
        for (const Stretch& against : other.stretches) {
            if (apart(stretch.lower, stretch.upper, against.lower, against.upper, m_tolerance))
                continue;
            for (std::size_t a = stretch.first; a < stretch.end; ++a)
                for (std::size_t b = i == j ? std::max(a + 2, against.first) : against.first; b < against.end;
                     ++b)
                    if (!apart(lowerOf(one.points[a], one.points[a + 1]),
                               upperOf(one.points[a], one.points[a + 1]),
                               lowerOf(other.points[b], other.points[b + 1]),
                               upperOf(other.points[b], other.points[b + 1]), m_tolerance))
                        crossSegments(i, a, j, b);
        }
    if (i == j)
        return;
    if (hasEnds(m_curves[i])) {
        touch(one.points.front(), j);
        touch(one.points.back(), j);
    }
    if (hasEnds(m_curves[j])) {
        touch(other.points.front(), i);
        touch(other.points.back(), i);
    }
}

void CurveSplitter::crossSegments(std::size_t i, std::size_t a, std::size_t j, std::size_t b)
{
    const Flat& one = m_flats[i];
    const Flat& other = m_flats[j];
    const Point2 u = minus(one.points[a + 1], one.points[a]);
    const Point2 v = minus(other.points[b + 1], other.points[b]);
    const double denominator = cross(u, v);
    if (std::abs(denominator) <= 1e-9 * std::sqrt(dot(u, u) * dot(v, v)))
        return;
    const Point2 between = minus(other.points[b], one.points[a]);
    const double onU = cross(between, v) / denominator;
    const double onV = cross(between, u) / denominator;
    // Chords fall short of their arcs, so near misses count until the true curves have been asked.
    constexpr double slack = 0.05;
    if (onU < -slack || onU > 1 + slack || onV < -slack || onV > 1 + slack)
        return;
    double s = one.parameters[a] + onU * (one.parameters[a + 1] - one.parameters[a]);
    double t = other.parameters[b] + onV * (other.parameters[b + 1] - other.parameters[b]);
    if (!refineCrossing(i, s, j, t))
        return;
    m_splits[i].push_back(s);
    m_splits[j].push_back(t);
}

/// Newton's method on the two parameters.
/// @return whether the curves meet there.
bool CurveSplitter::refineCrossing(std::size_t i, double& s, std::size_t j, double& t) const
{
    const int steps = isLine(m_curves[i]) && isLine(m_curves[j]) ? 0 : 3;
    for (int step = 0; step < steps; ++step) {
        const Point2 gap = minus(flatPoint(j, t), flatPoint(i, s));
        const Point2 u = flatDerivative(i, s);
        const Point2 v = flatDerivative(j, t);
        const double denominator = cross(u, v);
        if (std::abs(denominator) < 1e-12)
            break;
        s = std::clamp(s + cross(gap, v) / denominator, 0.0, 1.0);
        t = std::clamp(t + cross(gap, u) / denominator, 0.0, 1.0);
    }
    if (s < 0 || s > 1 || t < 0 || t > 1)
        return false;
    const Point2 gap = minus(flatPoint(j, t), flatPoint(i, s));
    return std::hypot(gap.x, gap.y) < m_tolerance;
}

/// Splits a curve where another's end lies on it.
void CurveSplitter::touch(const Point2& end, std::size_t j)
{
    const Flat& flat = m_flats[j];
    if (apart(end, end, flat.lower, flat.upper, m_tolerance))
        return;
    double best = 0;
    double nearest = -1;
    for (std::size_t b = 0; b + 1 < flat.points.size(); ++b) {
        const Point2 v = minus(flat.points[b + 1], flat.points[b]);
        const double squared = dot(v, v);
        const double fraction =
            squared > 0 ? std::clamp(dot(minus(end, flat.points[b]), v) / squared, 0.0, 1.0) : 0;
        const Point2 gap = minus({flat.points[b].x + fraction * v.x, flat.points[b].y + fraction * v.y}, end);
        if (nearest < 0 || dot(gap, gap) < nearest) {
            nearest = dot(gap, gap);
            best = flat.parameters[b] + fraction * (flat.parameters[b + 1] - flat.parameters[b]);
        }
    }
    for (int step = 0; step < 3 && !isLine(m_curves[j]); ++step) {
        const Point2 gap = minus(end, flatPoint(j, best));
        const Point2 direction = flatDerivative(j, best);
        if (dot(direction, direction) > 0)
            best = std::clamp(best + dot(gap, direction) / dot(direction, direction), 0.0, 1.0);
    }
    const Point2 gap = minus(end, flatPoint(j, best));
    if (std::hypot(gap.x, gap.y) < m_tolerance)
        m_splits[j].push_back(best);
}

Point2 CurveSplitter::flatPoint(std::size_t i, double t) const
{
    return m_camera.project(pointAt(m_curves[i], t));
}

Point2 CurveSplitter::flatDerivative(std::size_t i, double t) const
{
    return m_camera.project(derivativeAt(m_curves[i], t));
}

} // namespace devcatalog
