#include "dev/catalog/drawings/views/LineWork.h"

#include "dev/catalog/drawings/views/PolylineChain.h"

#include <ElCLib.hxx>
#include <GCPnts_TangentialDeflection.hxx>

#include <algorithm>
#include <cmath>

namespace devcatalog
{

namespace
{

constexpr double Pi = 3.14159265358979323846;
/// Distance in millimetres below which things coincide.
constexpr double Tolerance = 1e-3;
/// How far a polyline may be from its curve, in millimetres.
constexpr double LargestDeviation = 0.005;
constexpr double LargestTurn = 0.2; ///< From one piece of a polyline to the next, in radians.

double distance(const dwg::Point2& a, const dwg::Point2& b)
{
    return std::hypot(b.x - a.x, b.y - a.y);
}

bool coincide(const dwg::Point2& a, const dwg::Point2& b)
{
    return distance(a, b) < Tolerance;
}

double along(const dwg::Point2& direction, const dwg::Point2& origin, const dwg::Point2& point)
{
    return direction.x * (point.x - origin.x) + direction.y * (point.y - origin.y);
}

double beside(const dwg::Point2& direction, const dwg::Point2& origin, const dwg::Point2& point)
{
    return direction.x * (point.y - origin.y) - direction.y * (point.x - origin.x);
}

/// A free curve that may cover others.
class PathCover
{
public:
    /// @param vertices must outlive the object.
    explicit PathCover(const std::vector<dwg::PolylineVertex>& vertices) : m_vertices(vertices)
    {
        for (const dwg::PolylineVertex& vertex : vertices) {
            m_min = {std::min(m_min.x, vertex.point.x), std::min(m_min.y, vertex.point.y)};
            m_max = {std::max(m_max.x, vertex.point.x), std::max(m_max.y, vertex.point.y)};
        }
    }

    bool reaches(const dwg::Point2& point) const
    {
        // Both curves are that far from the one that they stand for.
        constexpr double near = 3 * LargestDeviation;
        if (point.x < m_min.x - near || point.x > m_max.x + near || point.y < m_min.y - near ||
            point.y > m_max.y + near)
            return false;
        for (std::size_t i = 1; i < m_vertices.size(); ++i) {
            const dwg::Point2& from = m_vertices[i - 1].point;
            const dwg::Point2& to = m_vertices[i].point;
            const double size = std::max(distance(from, to), Tolerance);
            const dwg::Point2 direction{(to.x - from.x) / size, (to.y - from.y) / size};
            const double at = std::clamp(along(direction, from, point), 0.0, size);
            if (distance({from.x + at * direction.x, from.y + at * direction.y}, point) < near)
                return true;
        }
        return false;
    }

private:
    const std::vector<dwg::PolylineVertex>& m_vertices;
    dwg::Point2 m_min{1e9, 1e9};
    dwg::Point2 m_max{-1e9, -1e9};
};

std::size_t indexOf(dwg::LineKind kind)
{
    return static_cast<std::size_t>(kind);
}

} // namespace

void LineWork::add(dwg::LineKind kind, const Adaptor3d_Curve& curve, double from, double to)
{
    if (curve.GetType() == GeomAbs_Line) {
        addLine(kind, curve.Value(from), curve.Value(to));
    } else if (curve.GetType() == GeomAbs_Circle) {
        addCircle(kind, curve.Circle(), from, to);
    } else {
        const GCPnts_TangentialDeflection samples(curve, from, to, LargestTurn, LargestDeviation);
        std::vector<gp_Pnt> points;
        for (int i = 1; i <= samples.NbPoints(); ++i)
            points.push_back(samples.Value(i));
        addPath(kind, points);
    }
}

void LineWork::addLine(dwg::LineKind kind, const gp_Pnt& from, const gp_Pnt& to)
{
    addSegment(kind, m_camera.project(from), m_camera.project(to));
}

void LineWork::addSegment(dwg::LineKind kind, const dwg::Point2& from, const dwg::Point2& to)
{
    const double size = distance(from, to);
    if (size < Tolerance)
        return;
    auto group = std::find_if(m_lines.begin(), m_lines.end(), [&from, &to](const LineGroup& each) {
        return std::abs(beside(each.direction, each.origin, from)) < Tolerance &&
               std::abs(beside(each.direction, each.origin, to)) < Tolerance;
    });
    if (group == m_lines.end()) {
        m_lines.push_back({from, {(to.x - from.x) / size, (to.y - from.y) / size}, {}});
        group = m_lines.end() - 1;
    }
    const double a = along(group->direction, group->origin, from);
    const double b = along(group->direction, group->origin, to);
    group->parts[indexOf(kind)].add(std::min(a, b), std::max(a, b));
}

/// It covers a straight line, whose ends are those of the circle's part or where the circle turns back.
void LineWork::addCircleSeenFromTheSide(dwg::LineKind kind, const gp_Circ& circle, double from, double to)
{
    const gp_Dir line = circle.Axis().Direction().Crossed(m_camera.toward);
    const double turn =
        ElCLib::Parameter(circle, circle.Location().Translated(circle.Radius() * gp_Vec(line)));
    double before = from;
    double next = turn + std::ceil((from - turn) / Pi) * Pi;
    while (next < to) {
        addLine(kind, ElCLib::Value(before, circle), ElCLib::Value(next, circle));
        before = next;
        next += Pi;
    }
    addLine(kind, ElCLib::Value(before, circle), ElCLib::Value(to, circle));
}

bool LineWork::covers(const gp_Circ& a, const gp_Circ& b) const
{
    return coincide(m_camera.project(a.Location()), m_camera.project(b.Location())) &&
           std::abs(a.Radius() - b.Radius()) < Tolerance &&
           a.Axis().Direction().IsParallel(b.Axis().Direction(), 1e-9);
}

void LineWork::addCircle(dwg::LineKind kind, const gp_Circ& circle, double from, double to)
{
    if (m_camera.seesFromTheSide(circle.Axis().Direction())) {
        addCircleSeenFromTheSide(kind, circle, from, to);
        return;
    }
    auto group = std::find_if(m_circles.begin(), m_circles.end(), [this, &circle](const CircleGroup& each) {
        return covers(each.circle, circle);
    });
    if (group == m_circles.end()) {
        m_circles.push_back({circle, {}});
        group = m_circles.end() - 1;
    }
    const gp_Vec shift(circle.Location(), group->circle.Location());
    const bool sameSense = circle.Axis().Direction().Dot(group->circle.Axis().Direction()) > 0;
    const gp_Pnt start = ElCLib::Value(sameSense ? from : to, circle).Translated(shift);
    double first = ElCLib::Parameter(group->circle, start);
    first = first > 2 * Pi - 1e-9 ? 0 : first;
    const double last = first + to - from;
    IntervalSet& parts = group->parts[indexOf(kind)];
    parts.add(first, std::min(last, 2 * Pi));
    if (last > 2 * Pi)
        parts.add(0, last - 2 * Pi);
}

void LineWork::addPath(dwg::LineKind kind, const std::vector<gp_Pnt>& points)
{
    Path path{kind, {}};
    for (const gp_Pnt& point : points)
        path.vertices.push_back({m_camera.project(point), 0});
    const dwg::Point2 from = path.vertices.front().point;
    const dwg::Point2 to = path.vertices.back().point;
    const double size = distance(from, to);
    const dwg::Point2 direction{(to.x - from.x) / size, (to.y - from.y) / size};
    const bool straight =
        size > Tolerance &&
        std::all_of(path.vertices.begin(), path.vertices.end(), [&](const dwg::PolylineVertex& vertex) {
            return std::abs(beside(direction, from, vertex.point)) < Tolerance;
        });
    if (straight || path.vertices.size() < 3) {
        addSegment(kind, from, to);
        return;
    }
    m_paths.push_back(path);
}

/// The pieces of free curves of a kind that no outline, and none of their own kind before them, covers.
std::vector<LineWork::Path> LineWork::pathsToDraw(dwg::LineKind kind) const
{
    std::vector<PathCover> covers;
    if (kind == dwg::LineKind::Hidden)
        for (const Path& path : m_paths)
            if (path.kind == dwg::LineKind::Outline)
                covers.emplace_back(path.vertices);
    std::vector<Path> pieces;
    for (const Path& path : m_paths) {
        if (path.kind != kind)
            continue;
        bool before = true;
        for (std::size_t i = 0; i < path.vertices.size(); ++i) {
            const bool now = std::any_of(covers.begin(), covers.end(), [&](const PathCover& cover) {
                return cover.reaches(path.vertices[i].point);
            });
            // A piece between a covered and an uncovered vertex counts as uncovered.
            if (!now && before)
                pieces.push_back({kind, {}});
            if (!now && before && i > 0)
                pieces.back().vertices.push_back(path.vertices[i - 1]);
            if (!now || !before)
                pieces.back().vertices.push_back(path.vertices[i]);
            before = now;
        }
        if (pieces.empty() || pieces.back().vertices.size() < 2)
            continue;
        covers.emplace_back(path.vertices);
    }
    return pieces;
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
    for (const dwg::LineKind kind :
         {dwg::LineKind::Outline, dwg::LineKind::Hidden, dwg::LineKind::Centre, dwg::LineKind::Thread}) {
        std::vector<Path> pieces;
        for (const LineGroup& group : m_lines)
            for (const Interval& part : partsToDraw(group.parts, kind, Tolerance)) {
                const auto point = [&group](double at) {
                    return dwg::Point2{group.origin.x + at * group.direction.x,
                                       group.origin.y + at * group.direction.y};
                };
                pieces.push_back({kind, {{point(part.from), 0}, {point(part.to), 0}}});
            }
        for (const CircleGroup& group : m_circles)
            appendCircleParts(entities, pieces, group, kind);
        const std::vector<Path> paths = pathsToDraw(kind);
        pieces.insert(pieces.end(), paths.begin(), paths.end());
        appendChains(entities, std::move(pieces));
    }
    return entities;
}

/// Seen end on, an arc is one or, beyond half a turn, several arcs of the polyline; else it is part of an
/// ellipse.
std::vector<dwg::PolylineVertex> LineWork::arc(const gp_Circ& circle, const Interval& part) const
{
    const bool endOn = m_camera.seesEndOn(circle.Axis().Direction());
    const double sense = circle.Axis().Direction().Dot(m_camera.toward) > 0 ? 1 : -1;
    const double largestStep =
        endOn ? Pi : std::min(LargestTurn, std::sqrt(8 * LargestDeviation / circle.Radius()));
    const double sweep = part.to - part.from;
    const int count = std::max(1, static_cast<int>(std::ceil(sweep / largestStep - 1e-9)));
    std::vector<dwg::PolylineVertex> vertices;
    for (int i = 0; i <= count; ++i)
        vertices.push_back({m_camera.project(ElCLib::Value(part.from + i * sweep / count, circle)),
                            endOn && i < count ? sense * std::tan(sweep / count / 4) : 0});
    return vertices;
}

void LineWork::appendCircleParts(std::vector<dwg::Entity>& entities, std::vector<Path>& pieces,
                                 const CircleGroup& group, dwg::LineKind kind) const
{
    const bool isThread = !group.parts[indexOf(dwg::LineKind::Thread)].empty();
    if (isThread && kind != dwg::LineKind::Thread)
        return;
    const double tolerance = Tolerance / group.circle.Radius();
    std::vector<Interval> parts = partsToDraw(group.parts, kind, tolerance);
    const bool meets =
        !parts.empty() && parts.front().from < tolerance && parts.back().to > 2 * Pi - tolerance;
    const bool endOn = m_camera.seesEndOn(group.circle.Axis().Direction());
    if (meets && parts.size() == 1 && endOn) {
        entities.push_back(
            {kind, dwg::Circle{m_camera.project(group.circle.Location()), group.circle.Radius()}});
        return;
    }
    if (meets && parts.size() > 1) {
        parts.front().from = parts.back().from - 2 * Pi;
        parts.pop_back();
    }
    for (const Interval& part : parts)
        pieces.push_back({kind, arc(group.circle, part)});
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
        lines = chainPolylines(std::move(lines), Tolerance);
    for (dwg::Polyline& line : lines)
        if (line.vertices.size() == 2 && line.vertices.front().bulge == 0)
            entities.push_back({kind, dwg::LineSegment{line.vertices[0].point, line.vertices[1].point}});
        else
            entities.push_back({kind, std::move(line)});
}

} // namespace devcatalog
