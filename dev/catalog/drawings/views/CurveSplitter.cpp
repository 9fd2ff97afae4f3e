#include "dev/catalog/drawings/views/CurveSplitter.h"

#include <algorithm>
#include <cmath>

namespace devcatalog
{

namespace
{

constexpr std::size_t segmentsPerStretch = 8;

dwg::Point2 minus(const dwg::Point2& a, const dwg::Point2& b)
{
    return {a.x - b.x, a.y - b.y};
}
double cross(const dwg::Point2& a, const dwg::Point2& b)
{
    return a.x * b.y - a.y * b.x;
}
double dot(const dwg::Point2& a, const dwg::Point2& b)
{
    return a.x * b.x + a.y * b.y;
}

bool apart(const dwg::Point2& lowerA, const dwg::Point2& upperA, const dwg::Point2& lowerB,
           const dwg::Point2& upperB, double gap)
{
    return lowerA.x > upperB.x + gap || lowerB.x > upperA.x + gap || lowerA.y > upperB.y + gap ||
           lowerB.y > upperA.y + gap;
}

dwg::Point2 lowerOf(const dwg::Point2& a, const dwg::Point2& b)
{
    return {std::min(a.x, b.x), std::min(a.y, b.y)};
}
dwg::Point2 upperOf(const dwg::Point2& a, const dwg::Point2& b)
{
    return {std::max(a.x, b.x), std::max(a.y, b.y)};
}

bool isLine(const Curve& curve)
{
    return std::holds_alternative<LineCurve>(curve);
}
bool isArc(const Curve& curve)
{
    return std::holds_alternative<ArcCurve>(curve);
}
bool isPath(const Curve& curve)
{
    return std::holds_alternative<PathCurve>(curve);
}

bool isStraight(const std::vector<dwg::Point2>& points, double tolerance)
{
    const dwg::Point2 direction = minus(points.back(), points.front());
    const double size = std::hypot(direction.x, direction.y);
    return size > tolerance && std::all_of(points.begin(), points.end(), [&](const dwg::Point2& point) {
               return std::abs(cross(direction, minus(point, points.front()))) <= size * tolerance;
           });
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
    // An arc reaches beyond its chords by a little, which is where outlines touch it.
    const auto* arc = std::get_if<ArcCurve>(&curve);
    const double reach = arc ? 0.001 * length(arc->u) : 0;
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
        stretch.lower = {stretch.lower.x - reach, stretch.lower.y - reach};
        stretch.upper = {stretch.upper.x + reach, stretch.upper.y + reach};
        flat.lower = lowerOf(flat.lower, stretch.lower);
        flat.upper = upperOf(flat.upper, stretch.upper);
        flat.stretches.push_back(stretch);
    }
    flat.straight = isStraight(flat.points, m_tolerance);
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
                        crossSegments({i, a}, {j, b});
        }
    if (i == j)
        return;
    touchSideways(i, j);
    touchSideways(j, i);
    if (hasEnds(m_curves[i])) {
        touch(one.points.front(), j);
        touch(one.points.back(), j);
    }
    if (hasEnds(m_curves[j])) {
        touch(other.points.front(), i);
        touch(other.points.back(), i);
    }
}

void CurveSplitter::crossSegments(const Segment& one, const Segment& other)
{
    const Flat& flatOne = m_flats[one.curve];
    const Flat& flatOther = m_flats[other.curve];
    const dwg::Point2 from = flatOne.points[one.index];
    const dwg::Point2 u = minus(flatOne.points[one.index + 1], from);
    const dwg::Point2 v = minus(flatOther.points[other.index + 1], flatOther.points[other.index]);
    const double denominator = cross(u, v);
    if (std::abs(denominator) <= 1e-9 * std::sqrt(dot(u, u) * dot(v, v)))
        return;
    const dwg::Point2 between = minus(flatOther.points[other.index], from);
    const double onOne = cross(between, v) / denominator;
    const double onOther = cross(between, u) / denominator;
    if (!isWithin(one, onOne) || !isWithin(other, onOther))
        return;
    double s = flatOne.parameterAt(one.index, onOne);
    double t = flatOther.parameterAt(other.index, onOther);
    if (!refineCrossing(one, s, other, t))
        return;
    m_splits[one.curve].push_back(s);
    m_splits[other.curve].push_back(t);
}

/// Chords fall short of their arcs, so on arcs near misses count until the true curves have been asked.
bool CurveSplitter::isWithin(const Segment& segment, double fraction) const
{
    const double slack = isArc(m_curves[segment.curve]) ? 0.05 : 1e-9;
    return fraction > -slack && fraction < 1 + slack;
}

/// Newton's method on the two parameters; where neither curve is an arc, the chords have met already.
/// @return whether the curves meet there.
bool CurveSplitter::refineCrossing(const Segment& one, double& s, const Segment& other, double& t) const
{
    for (int step = 0; step < 4; ++step) {
        const dwg::Point2 gap = minus(pointOn(other, t), pointOn(one, s));
        const dwg::Point2 u = derivativeOn(one, s);
        const dwg::Point2 v = derivativeOn(other, t);
        const double denominator = cross(u, v);
        if (std::hypot(gap.x, gap.y) < 1e-3 * m_tolerance || std::abs(denominator) < 1e-12)
            break;
        s += cross(gap, v) / denominator;
        t += cross(gap, u) / denominator;
    }
    s = std::clamp(s, 0.0, 1.0);
    t = std::clamp(t, 0.0, 1.0);
    const dwg::Point2 gap = minus(pointOn(other, t), pointOn(one, s));
    return std::hypot(gap.x, gap.y) < m_tolerance;
}

/// The point of the curve; a straight segment goes on beyond its ends.
dwg::Point2 CurveSplitter::pointOn(const Segment& segment, double t) const
{
    if (isArc(m_curves[segment.curve]))
        return flatPoint(segment.curve, t);
    const Flat& flat = m_flats[segment.curve];
    const double from = flat.parameters[segment.index];
    const dwg::Point2 direction = derivativeOn(segment, t);
    return {flat.points[segment.index].x + (t - from) * direction.x,
            flat.points[segment.index].y + (t - from) * direction.y};
}

dwg::Point2 CurveSplitter::derivativeOn(const Segment& segment, double t) const
{
    if (isArc(m_curves[segment.curve]))
        return flatDerivative(segment.curve, t);
    const Flat& flat = m_flats[segment.curve];
    const dwg::Point2 chord = minus(flat.points[segment.index + 1], flat.points[segment.index]);
    const double span = flat.parameters[segment.index + 1] - flat.parameters[segment.index];
    return {chord.x / span, chord.y / span};
}

/// Splits an arc, and what looks like a line, where one touches the other without crossing it, as the outline
/// of a cylinder touches all circles on it.
void CurveSplitter::touchSideways(std::size_t line, std::size_t arc)
{
    const auto* circle = std::get_if<ArcCurve>(&m_curves[arc]);
    if (!circle || !m_flats[line].straight)
        return;
    const dwg::Point2 start = m_flats[line].points.front();
    const dwg::Point2 direction = minus(m_flats[line].points.back(), start);
    const double size = std::hypot(direction.x, direction.y);
    const dwg::Point2 across{-direction.y / size, direction.x / size};
    const double u = dot(across, m_camera.project(circle->u));
    const double v = dot(across, m_camera.project(circle->v));
    if (std::hypot(u, v) < m_tolerance)
        return;
    for (const double angle : {std::atan2(v, u), std::atan2(-v, -u)}) {
        const double turn = std::remainder(angle - circle->from, 2 * pi) / circle->sweep();
        const double t = turn < 0 ? turn + 2 * pi / std::abs(circle->sweep()) : turn;
        if (t > 1)
            continue;
        const dwg::Point2 point = flatPoint(arc, t);
        const double along = dot(minus(point, start), direction);
        if (std::abs(dot(minus(point, start), across)) > m_tolerance || along < -m_tolerance * size ||
            along > (size + m_tolerance) * size)
            continue;
        m_splits[arc].push_back(t);
        touch(point, line);
    }
}

/// Splits a curve where another's end lies on it.
void CurveSplitter::touch(const dwg::Point2& end, std::size_t j)
{
    const Flat& flat = m_flats[j];
    if (apart(end, end, flat.lower, flat.upper, m_tolerance))
        return;
    double best = 0;
    double nearest = -1;
    for (std::size_t b = 0; b + 1 < flat.points.size(); ++b) {
        const dwg::Point2 v = minus(flat.points[b + 1], flat.points[b]);
        const double squared = dot(v, v);
        const double fraction =
            squared > 0 ? std::clamp(dot(minus(end, flat.points[b]), v) / squared, 0.0, 1.0) : 0;
        const dwg::Point2 gap =
            minus({flat.points[b].x + fraction * v.x, flat.points[b].y + fraction * v.y}, end);
        if (nearest < 0 || dot(gap, gap) < nearest) {
            nearest = dot(gap, gap);
            best = flat.parameters[b] + fraction * (flat.parameters[b + 1] - flat.parameters[b]);
        }
    }
    for (int step = 0; step < 3 && !isLine(m_curves[j]); ++step) {
        const dwg::Point2 gap = minus(end, flatPoint(j, best));
        const dwg::Point2 direction = flatDerivative(j, best);
        if (dot(direction, direction) > 0)
            best = std::clamp(best + dot(gap, direction) / dot(direction, direction), 0.0, 1.0);
    }
    const dwg::Point2 gap = minus(end, flatPoint(j, best));
    if (std::hypot(gap.x, gap.y) < m_tolerance)
        m_splits[j].push_back(best);
}

dwg::Point2 CurveSplitter::flatPoint(std::size_t i, double t) const
{
    return m_camera.project(pointAt(m_curves[i], t));
}

dwg::Point2 CurveSplitter::flatDerivative(std::size_t i, double t) const
{
    return m_camera.project(derivativeAt(m_curves[i], t));
}

} // namespace devcatalog
