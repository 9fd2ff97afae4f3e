#include "dev/catalog/drawings/solids/HexagonPrism.h"

#include "dev/catalog/drawings/solids/Profile.h"

#include <algorithm>
#include <cmath>

namespace devcatalog
{

namespace
{

constexpr int stepsPerFlat = 12;
const double slope = std::tan(pi / 6);

/// The circle through three points, from the first over the second to the third.
ArcCurve arcThrough(const Vector3& from, const Vector3& over, const Vector3& to)
{
    const Vector3 chord = to - from;
    const Vector3 middle = 0.5 * (from + to);
    const Vector3 rise = over - middle;
    const double sagitta = length(rise);
    const double radius = (dot(chord, chord) / 4 + sagitta * sagitta) / (2 * sagitta);
    const Vector3 u = (radius / sagitta) * rise;
    const Vector3 v = (radius / length(chord)) * chord;
    const double half = std::asin(length(chord) / 2 / radius);
    return {over - u, u, v, -half, half};
}

} // namespace

HexagonPrism::HexagonPrism(const Frame& frame, double acrossFlats, double height, Chamfer chamfer,
                           double bore)
    : m_acrossFlats(acrossFlats),
      m_bore(bore),
      m_chamferRadius(0.475 * acrossFlats),
      m_top{frame.raised(height), true},
      m_bottom{Frame::at(frame.origin, -frame.z, frame.x), chamfer == Chamfer::BothEnds}
{
}

/// Distance of the hexagon's side from the axis, in the direction of an angle.
double HexagonPrism::boundary(double angle) const
{
    const double fromMiddle = std::remainder(angle - pi / 6, pi / 3);
    return m_acrossFlats / 2 / std::cos(fromMiddle);
}

/// How far the end's edge lies below the end face. Of the cone's curve on a flat, which is nearly one, a
/// circle is made.
double HexagonPrism::drop(const End& end, double angle) const
{
    if (!end.chamfered)
        return 0;
    const double atMiddle = slope * (m_acrossFlats / 2 - m_chamferRadius);
    const double atCorner = slope * (m_acrossFlats / std::sqrt(3.0) - m_chamferRadius);
    const double halfFlat = m_acrossFlats / 2 / std::sqrt(3.0);
    const double sagitta = atCorner - atMiddle;
    const double radius = (halfFlat * halfFlat + sagitta * sagitta) / (2 * sagitta);
    const double x = m_acrossFlats / 2 * std::tan(std::remainder(angle - pi / 6, pi / 3));
    return atMiddle + radius - std::sqrt(radius * radius - x * x);
}

Vector3 HexagonPrism::onBoundary(const End& end, double angle) const
{
    return end.frame.polar(boundary(angle), angle, -drop(end, angle));
}

void HexagonPrism::appendCurves(std::vector<Curve>& curves, const Vector3& toward) const
{
    appendEndCurves(curves, m_top, toward);
    appendEndCurves(curves, m_bottom, toward);
    for (int i = 0; i < 6; ++i)
        curves.emplace_back(LineCurve{onBoundary(m_top, i * pi / 3), onBoundary(m_bottom, -i * pi / 3)});
}

void HexagonPrism::appendEndCurves(std::vector<Curve>& curves, const End& end, const Vector3& toward) const
{
    for (int i = 0; i < 6; ++i) {
        const Vector3 from = onBoundary(end, i * pi / 3);
        const Vector3 to = onBoundary(end, (i + 1) * pi / 3);
        if (end.chamfered)
            curves.emplace_back(arcThrough(from, onBoundary(end, (i + 0.5) * pi / 3), to));
        else
            curves.emplace_back(LineCurve{from, to});
    }
    if (!end.chamfered)
        return;
    curves.emplace_back(circleAround(end.frame, m_chamferRadius, 0));
    const double across = std::hypot(dot(toward, end.frame.x), dot(toward, end.frame.y));
    const double viewAngle = std::atan2(dot(toward, end.frame.y), dot(toward, end.frame.x));
    // The cone's normal rises by 60 degrees.
    const double cosine = -dot(toward, end.frame.z) / (slope * across);
    if (across < 1e-9 || std::abs(cosine) > 1)
        return;
    for (const double angle : {viewAngle + std::acos(cosine), viewAngle - std::acos(cosine)})
        curves.emplace_back(LineCurve{end.frame.polar(m_chamferRadius, angle, 0), onBoundary(end, angle)});
}

void HexagonPrism::appendFaces(std::vector<Face>& faces, const Vector3&) const
{
    appendEndFaces(faces, m_top);
    appendEndFaces(faces, m_bottom);
    for (int i = 0; i < 6; ++i) {
        Face flat;
        flat.loops.emplace_back();
        for (int step = 0; step <= stepsPerFlat; ++step)
            flat.loops.front().push_back(
                onBoundary(m_top, (i + static_cast<double>(step) / stepsPerFlat) * pi / 3));
        for (int step = stepsPerFlat; step >= 0; --step)
            flat.loops.front().push_back(
                onBoundary(m_bottom, -(i + static_cast<double>(step) / stepsPerFlat) * pi / 3));
        flat.normal = m_top.frame.polar(1, (i + 0.5) * pi / 3, 0) - m_top.frame.origin;
        faces.push_back(flat);
    }
}

void HexagonPrism::appendEndFaces(std::vector<Face>& faces, const End& end) const
{
    Face cap{{{}}, end.frame.z};
    for (int i = 0; i < 6 * stepsPerFlat; ++i) {
        const double angle = i * pi / 3 / stepsPerFlat;
        const double next = (i + 1) * pi / 3 / stepsPerFlat;
        if (!end.chamfered) {
            cap.loops.front().push_back(onBoundary(end, angle));
            continue;
        }
        const Vector3 a = end.frame.polar(m_chamferRadius, angle, 0);
        const Vector3 b = end.frame.polar(m_chamferRadius, next, 0);
        cap.loops.front().push_back(a);
        const Vector3 c = onBoundary(end, next);
        const Vector3 d = onBoundary(end, angle);
        // The four corners are not quite in one plane.
        faces.push_back({{{a, d, c}}, normalized(cross(d - a, c - a))});
        faces.push_back({{{a, c, b}}, normalized(cross(c - a, b - a))});
    }
    if (m_bore > 0) {
        cap.loops.emplace_back();
        for (const dwg::Point2& point : facets(reversed(circle({}, m_bore))))
            cap.loops.back().push_back(end.frame.point(point.x, point.y, 0));
    }
    faces.push_back(cap);
}

} // namespace devcatalog
