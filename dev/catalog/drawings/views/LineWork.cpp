#include "dev/catalog/drawings/views/LineWork.h"

#include "dev/catalog/drawings/solids/Profile.h"
#include "dev/catalog/drawings/views/PolylineChain.h"

#include <algorithm>
#include <cmath>

namespace devcatalog
{

namespace
{

constexpr double anglePerVertex = pi / 20;
// Of three neighbouring points on a smooth curve; in a cusp they do not lie on an arc.
constexpr double sharpestBulge = 0.5;

double distance(const dwg::Point2& a, const dwg::Point2& b)
{
    return std::hypot(b.x - a.x, b.y - a.y);
}

double along(const dwg::Point2& direction, const dwg::Point2& origin, const dwg::Point2& point)
{
    return direction.x * (point.x - origin.x) + direction.y * (point.y - origin.y);
}

double beside(const dwg::Point2& direction, const dwg::Point2& origin, const dwg::Point2& point)
{
    return direction.x * (point.y - origin.y) - direction.y * (point.x - origin.x);
}

/// Points along a curve, with one in the middle of each two vertices of the polyline that shows it.
std::vector<dwg::Point2> pointsAlong(const Curve& curve, const Camera& camera)
{
    std::vector<dwg::Point2> points;
    if (const auto* path = std::get_if<PathCurve>(&curve)) {
        for (const Vector3& point : path->points)
            points.push_back(camera.project(point));
        return points;
    }
    const double sweep = std::abs(std::get<ArcCurve>(curve).sweep());
    const int count = 2 * std::max(1, static_cast<int>(std::ceil(sweep / anglePerVertex)));
    for (int i = 0; i <= count; ++i)
        points.push_back(camera.project(pointAt(curve, static_cast<double>(i) / count)));
    return points;
}

std::size_t indexOf(dwg::LineKind kind)
{
    return static_cast<std::size_t>(kind);
}

} // namespace

LineWork::LineWork(const Camera& camera, double tolerance) : m_camera(camera), m_tolerance(tolerance)
{
}

void LineWork::add(dwg::LineKind kind, const Curve& curve)
{
    const auto* arc = std::get_if<ArcCurve>(&curve);
    const Vector3 normal = arc ? normalized(cross(arc->u, arc->v)) : Vector3{};
    const double facing = std::abs(dot(normal, m_camera.toward));
    if (std::holds_alternative<LineCurve>(curve) || (arc && facing < 1e-9))
        addLine(kind, m_camera.project(pointAt(curve, 0)), m_camera.project(pointAt(curve, 1)));
    else if (arc && facing > 1 - 1e-9)
        addArc(kind, *arc);
    else
        addPath(kind, pointsAlong(curve, m_camera));
}

bool LineWork::coincide(const dwg::Point2& a, const dwg::Point2& b) const
{
    return distance(a, b) < m_tolerance;
}

bool LineWork::coincide(const Path& a, const Path& b) const
{
    const dwg::Point2& middle = b.vertices[b.vertices.size() / 2].point;
    const bool sameEnds = (coincide(a.vertices.front().point, b.vertices.front().point) &&
                           coincide(a.vertices.back().point, b.vertices.back().point)) ||
                          (coincide(a.vertices.front().point, b.vertices.back().point) &&
                           coincide(a.vertices.back().point, b.vertices.front().point));
    return sameEnds && std::any_of(a.vertices.begin(), a.vertices.end(),
                                   [this, &middle](const dwg::PolylineVertex& each) {
                                       return coincide(each.point, middle);
                                   });
}

void LineWork::addLine(dwg::LineKind kind, const dwg::Point2& from, const dwg::Point2& to)
{
    const double size = distance(from, to);
    if (size < m_tolerance)
        return;
    auto group = std::find_if(m_lines.begin(), m_lines.end(), [this, &from, &to](const LineGroup& each) {
        return std::abs(beside(each.direction, each.origin, from)) < m_tolerance &&
               std::abs(beside(each.direction, each.origin, to)) < m_tolerance;
    });
    if (group == m_lines.end()) {
        m_lines.push_back({from, {(to.x - from.x) / size, (to.y - from.y) / size}, {}});
        group = m_lines.end() - 1;
    }
    const double a = along(group->direction, group->origin, from);
    const double b = along(group->direction, group->origin, to);
    group->parts[indexOf(kind)].add(std::min(a, b), std::max(a, b));
}

void LineWork::addArc(dwg::LineKind kind, const ArcCurve& arc)
{
    const dwg::Point2 centre = m_camera.project(arc.centre);
    const double radius = length(arc.u);
    auto group =
        std::find_if(m_circles.begin(), m_circles.end(), [this, &centre, radius](const CircleGroup& each) {
            return coincide(each.centre, centre) && std::abs(each.radius - radius) < m_tolerance;
        });
    if (group == m_circles.end()) {
        m_circles.push_back({centre, radius, {}});
        group = m_circles.end() - 1;
    }
    IntervalSet& parts = group->parts[indexOf(kind)];
    if (arc.isFullCircle()) {
        parts.add(0, 2 * pi);
        return;
    }
    const bool counterClockwise = (dot(cross(arc.u, arc.v), m_camera.toward) > 0) == (arc.sweep() > 0);
    const dwg::Point2 start = m_camera.project(pointAt(arc, counterClockwise ? 0 : 1));
    double from = std::atan2(start.y - centre.y, start.x - centre.x);
    from = from < -1e-9 ? from + 2 * pi : std::max(from, 0.0);
    const double to = from + std::abs(arc.sweep());
    parts.add(from, std::min(to, 2 * pi));
    if (to > 2 * pi)
        parts.add(0, to - 2 * pi);
}

void LineWork::addPath(dwg::LineKind kind, const std::vector<dwg::Point2>& points)
{
    Path path{kind, {}};
    std::size_t i = 0;
    for (; i + 2 < points.size(); i += 2) {
        const double bulge = bulgeThrough(points[i], points[i + 1], points[i + 2]);
        const bool turnsBack = std::abs(bulge) > sharpestBulge;
        path.vertices.push_back({points[i], turnsBack ? 0 : bulge});
        if (turnsBack)
            path.vertices.push_back({points[i + 1], 0});
    }
    for (; i < points.size(); ++i)
        path.vertices.push_back({points[i], 0});
    if (path.vertices.size() == 2 && coincide(path.vertices.front().point, path.vertices.back().point))
        return;
    for (Path& other : m_paths)
        if (other.kind != dwg::LineKind::Centre && kind != dwg::LineKind::Centre && coincide(other, path)) {
            other.kind = std::min(other.kind, kind);
            return;
        }
    m_paths.push_back(path);
}

std::vector<Interval> LineWork::partsToDraw(const Kinds& parts, dwg::LineKind kind, double tolerance) const
{
    const IntervalSet& own = parts[indexOf(kind)];
    const IntervalSet& outline = parts[indexOf(dwg::LineKind::Outline)];
    return (kind == dwg::LineKind::Hidden ? own.without(outline, tolerance) : own).joined(tolerance);
}

std::vector<dwg::Entity> LineWork::entities() const
{
    std::vector<dwg::Entity> entities;
    for (const dwg::LineKind kind : {dwg::LineKind::Outline, dwg::LineKind::Hidden, dwg::LineKind::Centre}) {
        std::vector<Path> pieces;
        for (const LineGroup& group : m_lines)
            for (const Interval& part : partsToDraw(group.parts, kind, m_tolerance)) {
                const auto point = [&group](double at) {
                    return dwg::Point2{group.origin.x + at * group.direction.x,
                                       group.origin.y + at * group.direction.y};
                };
                pieces.push_back({kind, {{point(part.from), 0}, {point(part.to), 0}}});
            }
        for (const CircleGroup& group : m_circles)
            appendCircleParts(entities, pieces, group, kind);
        std::copy_if(m_paths.begin(), m_paths.end(), std::back_inserter(pieces),
                     [kind](const Path& path) { return path.kind == kind; });
        appendChains(entities, pieces);
    }
    return entities;
}

void LineWork::appendCircleParts(std::vector<dwg::Entity>& entities, std::vector<Path>& pieces,
                                 const CircleGroup& group, dwg::LineKind kind) const
{
    const double tolerance = m_tolerance / group.radius;
    std::vector<Interval> parts = partsToDraw(group.parts, kind, tolerance);
    const bool meets =
        !parts.empty() && parts.front().from < tolerance && parts.back().to > 2 * pi - tolerance;
    if (meets && parts.size() == 1) {
        entities.push_back({kind, dwg::Circle{group.centre, group.radius}});
        return;
    }
    if (meets) {
        parts.front().from = parts.back().from - 2 * pi;
        parts.pop_back();
    }
    for (const Interval& part : parts) {
        const int count = std::max(1, static_cast<int>(std::ceil((part.to - part.from) / pi - 1e-9)));
        const double step = (part.to - part.from) / count;
        Path piece{kind, {}};
        for (int i = 0; i <= count; ++i)
            piece.vertices.push_back({{group.centre.x + group.radius * std::cos(part.from + i * step),
                                       group.centre.y + group.radius * std::sin(part.from + i * step)},
                                      i < count ? std::tan(step / 4) : 0});
        pieces.push_back(piece);
    }
}

void LineWork::appendChains(std::vector<dwg::Entity>& entities, std::vector<Path> pieces) const
{
    if (pieces.empty())
        return;
    const dwg::LineKind kind = pieces.front().kind;
    std::vector<dwg::Polyline> lines;
    lines.reserve(pieces.size());
    for (Path& piece : pieces)
        lines.push_back({std::move(piece.vertices), false});
    if (kind != dwg::LineKind::Centre)
        lines = chainPolylines(std::move(lines), m_tolerance);
    for (dwg::Polyline& line : lines)
        if (line.vertices.size() == 2 && line.vertices.front().bulge == 0)
            entities.push_back({kind, dwg::LineSegment{line.vertices[0].point, line.vertices[1].point}});
        else
            entities.push_back({kind, std::move(line)});
}

} // namespace devcatalog
