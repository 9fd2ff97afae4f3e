#include "dev/catalog/drawings/solids/Revolution.h"

#include <algorithm>
#include <cmath>

namespace devcatalog
{

namespace
{

constexpr int facetsAround = 72;
constexpr int outlineSamples = 16;

bool onAxis(const dwg::Point2& point)
{
    return point.x < 1e-9;
}

/// The outward normal in the outline's plane at a fraction of a segment.
dwg::Point2 normalAt(const ProfileSegment& segment, double fraction)
{
    const double angle = std::atan2(segment.to.y - segment.from.y, segment.to.x - segment.from.x) +
                         (fraction - 0.5) * segment.sweep();
    return {std::sin(angle), -std::cos(angle)};
}

/// The cosine of the angle between the view and the outline's place around the axis; beyond 1 there is none.
/// @param slope how far the view rises along the axis.
double outlineCosine(const ProfileSegment& segment, double fraction, double slope)
{
    const dwg::Point2 normal = normalAt(segment, fraction);
    if (std::abs(normal.y * slope) < 1e-9)
        return 0;
    return std::abs(normal.x) < 1e-9 ? 2 : -normal.y * slope / normal.x;
}

/// The part of a segment that has an outline, as fractions.
struct OutlineRange {
    double from = 0.0;
    double to = 0.0;
};

OutlineRange outlineRange(const ProfileSegment& segment, double slope)
{
    const auto has = [&segment, slope](double fraction) {
        return std::abs(outlineCosine(segment, fraction, slope)) <= 1;
    };
    // Halves the way from a fraction that has none to one that has.
    const auto boundary = [&has](double without, double with) {
        for (int i = 0; i < 40; ++i)
            (has((without + with) / 2) ? with : without) = (without + with) / 2;
        return with;
    };
    int first = 0;
    while (first <= outlineSamples && !has(static_cast<double>(first) / outlineSamples))
        ++first;
    if (first > outlineSamples)
        return {};
    int last = outlineSamples;
    while (!has(static_cast<double>(last) / outlineSamples))
        --last;
    const double from = static_cast<double>(first) / outlineSamples;
    const double to = static_cast<double>(last) / outlineSamples;
    return {first == 0 ? from : boundary(from - 1.0 / outlineSamples, from),
            last == outlineSamples ? to : boundary(to + 1.0 / outlineSamples, to)};
}

dwg::Point2 pointAt(const ProfileSegment& segment, double fraction)
{
    if (!segment.isArc())
        return {segment.from.x + fraction * (segment.to.x - segment.from.x),
                segment.from.y + fraction * (segment.to.y - segment.from.y)};
    const double angle = segment.startAngle() + fraction * segment.sweep();
    return {segment.centre().x + segment.radius() * std::cos(angle),
            segment.centre().y + segment.radius() * std::sin(angle)};
}

} // namespace

Revolution::Revolution(const Frame& frame, const Profile& outline)
    : m_frame(frame), m_segments(segmentsOf(outline)), m_closed(outline.closed)
{
    for (const ProfileSegment& segment : m_segments) {
        std::vector<dwg::Point2> points = facets(segment);
        points.push_back(segment.to);
        for (std::size_t i = 0; i + 1 < points.size(); ++i)
            addFaces(points[i], points[i + 1]);
    }
}

/// A regular polygon within the circle, or around it where the material is outside.
std::vector<Vector3> Revolution::ring(const dwg::Point2& point, bool inside) const
{
    const double step = 2 * pi / facetsAround;
    std::vector<Vector3> points;
    points.reserve(facetsAround);
    for (int i = 0; i < facetsAround; ++i)
        points.push_back(inside ? m_frame.polar(point.x, i * step, point.y)
                                : m_frame.polar(point.x / std::cos(step / 2), (i + 0.5) * step, point.y));
    return points;
}

void Revolution::addFaces(const dwg::Point2& from, const dwg::Point2& to)
{
    if (onAxis(from) && onAxis(to))
        return;
    const dwg::Point2 normal = normalAt({from, to, 0}, 0.5);
    if (std::abs(normal.x) < 1e-9) {
        Face face{{ring(from.x > to.x ? from : to, true)}, normal.y * m_frame.z};
        if (!onAxis(from.x > to.x ? to : from))
            face.loops.push_back(ring(from.x > to.x ? to : from, false));
        m_faces.push_back(face);
        return;
    }
    const std::vector<Vector3> lower = ring(from, normal.x > 0);
    const std::vector<Vector3> upper = ring(to, normal.x > 0);
    for (std::size_t i = 0; i < lower.size(); ++i) {
        const std::size_t next = (i + 1) % lower.size();
        m_faces.push_back(quadrangle(lower[i], lower[next], upper[next], upper[i]));
    }
}

void Revolution::appendCurves(std::vector<Curve>& curves, const Vector3& toward) const
{
    const Vector3 local{dot(toward, m_frame.x), dot(toward, m_frame.y), dot(toward, m_frame.z)};
    appendEdges(curves);
    for (const ProfileSegment& segment : m_segments) {
        if (onAxis(segment.from) && onAxis(segment.to))
            continue;
        if (std::hypot(local.x, local.y) < 1e-9)
            appendOutlinesAlongAxis(curves, segment);
        else
            appendOutlines(curves, segment, local);
        if (std::abs(local.z) < 1e-9)
            appendFaceEdgeOn(curves, segment);
    }
}

void Revolution::appendEdges(std::vector<Curve>& curves) const
{
    const std::size_t count = m_segments.size();
    for (std::size_t i = 0; i < count; ++i) {
        const ProfileSegment& segment = m_segments[i];
        const bool hasPrevious = m_closed || i > 0;
        if (!onAxis(segment.from) &&
            (!hasPrevious || bendsBetween(m_segments[(i + count - 1) % count], segment)))
            curves.push_back(circleAround(m_frame, segment.from.x, segment.from.y));
    }
    if (!m_closed && !onAxis(m_segments.back().to))
        curves.push_back(circleAround(m_frame, m_segments.back().to.x, m_segments.back().to.y));
}

/// Where the surface turns from the viewer: its normal, turned around the axis, is at a right angle to the
/// view.
void Revolution::appendOutlines(std::vector<Curve>& curves, const ProfileSegment& segment,
                                const Vector3& toward) const
{
    const double across = std::hypot(toward.x, toward.y);
    const double viewAngle = std::atan2(toward.y, toward.x);
    const OutlineRange range = outlineRange(segment, toward.z / across);
    if (range.to - range.from < 1e-9)
        return;
    const int samples = segment.isArc() ? outlineSamples : 1;
    for (const double side : {1.0, -1.0}) {
        PathCurve path;
        for (int i = 0; i <= samples; ++i) {
            const double fraction = range.from + (range.to - range.from) * i / samples;
            const dwg::Point2 point = pointAt(segment, fraction);
            const double angle =
                std::acos(std::clamp(outlineCosine(segment, fraction, toward.z / across), -1.0, 1.0));
            path.points.push_back(m_frame.polar(point.x, viewAngle + side * angle, point.y));
        }
        if (samples == 1)
            curves.emplace_back(LineCurve{path.points[0], path.points[1]});
        else
            curves.emplace_back(path);
    }
}

/// Seen from the side, a flat end is as wide as its outer circle, also where that is no edge.
void Revolution::appendFaceEdgeOn(std::vector<Curve>& curves, const ProfileSegment& segment) const
{
    if (std::abs(segment.to.y - segment.from.y) < 1e-9)
        curves.push_back(circleAround(m_frame, std::max(segment.from.x, segment.to.x), segment.from.y));
}

/// Seen along the axis, only the widest and narrowest places of a rounded surface stand out.
void Revolution::appendOutlinesAlongAxis(std::vector<Curve>& curves, const ProfileSegment& segment) const
{
    if (!segment.isArc())
        return;
    for (const double angle : {0.0, pi}) {
        const double sign = segment.sweep() < 0 ? -1 : 1;
        const double offset = std::remainder(angle - segment.startAngle(), 2 * pi) * sign;
        const dwg::Point2 point{segment.centre().x + segment.radius() * std::cos(angle), segment.centre().y};
        if (offset > -1e-9 && offset < std::abs(segment.sweep()) + 1e-9 && point.x > 1e-9)
            curves.push_back(circleAround(m_frame, point.x, point.y));
    }
}

void Revolution::appendFaces(std::vector<Face>& faces, const Vector3&) const
{
    faces.insert(faces.end(), m_faces.begin(), m_faces.end());
}

} // namespace devcatalog
