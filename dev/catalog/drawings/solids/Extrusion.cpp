#include "dev/catalog/drawings/solids/Extrusion.h"

#include <algorithm>
#include <cmath>

namespace devcatalog
{

namespace
{

bool same(double a, double b)
{
    return std::abs(a - b) < 1e-9;
}

Curve curveOf(const Frame& frame, const ProfileSegment& segment, double z)
{
    if (!segment.isArc())
        return LineCurve{frame.point(segment.from.x, segment.from.y, z),
                         frame.point(segment.to.x, segment.to.y, z)};
    const dwg::Point2 centre = segment.centre();
    const double radius = segment.radius();
    return ArcCurve{frame.point(centre.x, centre.y, z), radius * frame.x, radius * frame.y,
                    segment.startAngle(), segment.startAngle() + segment.sweep()};
}

/// Whether an arc passes the direction of an angle.
bool passes(const ProfileSegment& arc, double angle)
{
    const double sweep = arc.sweep();
    double offset = std::remainder(angle - arc.startAngle(), 2 * pi) * (sweep < 0 ? -1 : 1);
    if (offset < -1e-9)
        offset += 2 * pi;
    return offset < std::abs(sweep) + 1e-9;
}

/// Whether a point is inside a planar face.
bool contains(const Face& face, const Vector3& point)
{
    // Two directions within the plane.
    const Vector3 u = normalized(cross(face.normal, std::abs(face.normal.z) < 0.9 ? zAxis : xAxis));
    const Vector3 v = cross(face.normal, u);
    bool inside = false;
    for (const auto& loop : face.loops)
        for (std::size_t i = 0; i < loop.size(); ++i) {
            const Vector3 a = loop[i] - point;
            const Vector3 b = loop[(i + 1) % loop.size()] - point;
            const double au = dot(a, u);
            const double av = dot(a, v);
            const double bu = dot(b, u);
            const double bv = dot(b, v);
            if ((av > 0) != (bv > 0) && au + (bu - au) * av / (av - bv) > 0)
                inside = !inside;
        }
    return inside;
}

} // namespace

Extrusion::Extrusion(const Frame& frame, const Profile& outline, double height,
                     const std::vector<Hole>& holes)
    : m_frame(frame), m_outline{outline, 0, height, true, true}, m_holes(holes)
{
    for (Hole& hole : m_holes)
        if (signedArea(hole.outline) > 0)
            hole.outline = reversed(hole.outline);
    addCaps();
    addWalls(m_outline);
    for (const Hole& hole : m_holes)
        addWalls(hole);
}

void Extrusion::addCaps()
{
    std::vector<Profile> bottom{m_outline.outline};
    std::vector<Profile> top{m_outline.outline};
    for (const Hole& hole : m_holes) {
        if (same(hole.from, 0))
            bottom.push_back(hole.outline);
        if (same(hole.to, m_outline.to))
            top.push_back(hole.outline);
    }
    addCap(bottom, 0, -1);
    addCap(top, m_outline.to, 1);
    for (const Hole& hole : m_holes) {
        if (!same(hole.from, 0))
            addStep(hole, hole.from, 1);
        if (!same(hole.to, m_outline.to))
            addStep(hole, hole.to, -1);
    }
}

/// The end of a blind hole, which a narrower hole may go on from.
void Extrusion::addStep(const Hole& hole, double z, double direction)
{
    std::vector<Profile> loops{hole.outline};
    for (const Hole& other : m_holes) {
        if (!same(direction > 0 ? other.to : other.from, z))
            continue;
        if (std::abs(signedArea(other.outline)) > std::abs(signedArea(hole.outline)))
            return; // The wider hole has the step.
        loops.push_back(other.outline);
    }
    addCap(loops, z, direction);
}

void Extrusion::addCap(const std::vector<Profile>& loops, double z, double direction)
{
    Face face;
    face.normal = direction * m_frame.z;
    for (const Profile& loop : loops) {
        std::vector<Vector3> points;
        for (const dwg::Point2& point : facets(loop))
            points.push_back(m_frame.point(point.x, point.y, z));
        face.loops.push_back(points);
    }
    m_caps.push_back(face);
}

void Extrusion::addWalls(const Hole& loop)
{
    for (const ProfileSegment& segment : segmentsOf(loop.outline)) {
        std::vector<dwg::Point2> points = facets(segment);
        points.push_back(segment.to);
        for (std::size_t i = 0; i + 1 < points.size(); ++i) {
            const dwg::Point2& a = points[i];
            const dwg::Point2& b = points[i + 1];
            Face wall;
            wall.loops = {{m_frame.point(a.x, a.y, loop.from), m_frame.point(b.x, b.y, loop.from),
                           m_frame.point(b.x, b.y, loop.to), m_frame.point(a.x, a.y, loop.to)}};
            wall.normal = normalized((b.y - a.y) * m_frame.x - (b.x - a.x) * m_frame.y);
            (segment.isArc() ? m_curvedWalls : m_flatWalls).push_back(wall);
        }
    }
}

void Extrusion::pierce(const Vector3& from, const Vector3& to, double radius)
{
    const Vector3 direction = normalized(to - from);
    for (Face& wall : m_flatWalls) {
        if (length(cross(wall.normal, direction)) > 1e-9)
            continue;
        const double distance = dot(wall.loops.front().front() - from, direction);
        const Vector3 centre = from + distance * direction;
        if (distance < -1e-9 || distance > length(to - from) + 1e-9 || !contains(wall, centre))
            continue;
        const Vector3 across = normalized(wall.loops.front()[1] - wall.loops.front()[0]);
        const Frame frame = Frame::at(centre, wall.normal, across);
        std::vector<Vector3> opening;
        for (const dwg::Point2& point : facets(reversed(circle({}, radius))))
            opening.push_back(frame.point(point.x, point.y, 0));
        wall.loops.push_back(opening);
    }
}

void Extrusion::appendCurves(std::vector<Curve>& curves, const Vector3& toward) const
{
    const double vx = dot(toward, m_frame.x);
    const double vy = dot(toward, m_frame.y);
    const bool seenAlongAxis = std::hypot(vx, vy) < 1e-9;
    const double viewAngle = std::atan2(vy, vx);
    appendEdges(curves, m_outline);
    if (!seenAlongAxis)
        appendOutlines(curves, m_outline, viewAngle);
    for (const Hole& hole : m_holes) {
        appendEdges(curves, hole);
        if (!seenAlongAxis)
            appendOutlines(curves, hole, viewAngle);
    }
}

void Extrusion::appendEdges(std::vector<Curve>& curves, const Hole& loop) const
{
    const std::vector<ProfileSegment> segments = segmentsOf(loop.outline);
    for (std::size_t i = 0; i < segments.size(); ++i) {
        if (loop.edgeAtFrom)
            curves.push_back(curveOf(m_frame, segments[i], loop.from));
        if (loop.edgeAtTo)
            curves.push_back(curveOf(m_frame, segments[i], loop.to));
        const ProfileSegment& next = segments[(i + 1) % segments.size()];
        if (bendsBetween(segments[i], next))
            curves.push_back(LineCurve{m_frame.point(next.from.x, next.from.y, loop.from),
                                       m_frame.point(next.from.x, next.from.y, loop.to)});
    }
}

void Extrusion::appendOutlines(std::vector<Curve>& curves, const Hole& loop, double viewAngle) const
{
    for (const ProfileSegment& segment : segmentsOf(loop.outline)) {
        if (!segment.isArc())
            continue;
        for (const double angle : {viewAngle + pi / 2, viewAngle - pi / 2}) {
            if (!passes(segment, angle))
                continue;
            const double x = segment.centre().x + segment.radius() * std::cos(angle);
            const double y = segment.centre().y + segment.radius() * std::sin(angle);
            curves.push_back(LineCurve{m_frame.point(x, y, loop.from), m_frame.point(x, y, loop.to)});
        }
    }
}

void Extrusion::appendFaces(std::vector<Face>& faces, const Vector3&) const
{
    for (const auto* group : {&m_caps, &m_flatWalls, &m_curvedWalls})
        faces.insert(faces.end(), group->begin(), group->end());
}

} // namespace devcatalog
