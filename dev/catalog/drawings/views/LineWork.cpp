#include "dev/catalog/drawings/views/LineWork.h"

#include "dev/catalog/drawings/solids/Shapes.h"
#include "dev/catalog/drawings/views/PolylineChain.h"

#include <ElCLib.hxx>
#include <GCPnts_TangentialDeflection.hxx>

#include <algorithm>
#include <cmath>

namespace devcatalog
{

namespace
{

/// Distance in millimetres below which things coincide.
constexpr double Tolerance = 1e-3;
/// How far a polyline may be from its curve, in millimetres.
constexpr double LargestDeviation = 0.005;
constexpr double LargestTurn = 0.2; ///< From one piece of a polyline to the next, in radians.

std::size_t indexOf(dwg::LineKind kind)
{
    return static_cast<std::size_t>(kind);
}

dwg::PolylineVertex vertexAt(const gp_Pnt2d& point, double bulge = 0.0)
{
    return {{point.X(), point.Y()}, bulge};
}

/// @param tolerance parts that are no farther apart are joined.
void unite(Intrv_Intervals& parts, double from, double to, double tolerance)
{
    const auto single = static_cast<float>(tolerance);
    parts.Unite(Intrv_Interval(from, single, to, single));
}

/// The parts of a line or circle to draw as one kind.
/// @param tolerance shorter ones do not count.
std::vector<Intrv_Interval> partsToDraw(const std::array<Intrv_Intervals, 4>& kinds, dwg::LineKind kind,
                                        double tolerance)
{
    Intrv_Intervals parts = kinds[indexOf(kind)];
    if (kind == dwg::LineKind::Hidden)
        parts.Subtract(kinds[indexOf(dwg::LineKind::Outline)]);
    std::vector<Intrv_Interval> result;
    for (int i = 1; i <= parts.NbIntervals(); ++i)
        if (parts.Value(i).End() - parts.Value(i).Start() >= tolerance)
            result.push_back(parts.Value(i));
    return result;
}

void appendChains(std::vector<dwg::Entity>& entities, std::vector<dwg::Polyline> pieces, dwg::LineKind kind)
{
    if (kind != dwg::LineKind::Centre)
        pieces = chainPolylines(std::move(pieces), Tolerance);
    for (dwg::Polyline& line : pieces)
        if (line.vertices.size() == 2 && line.vertices.front().bulge == 0)
            entities.push_back({kind, dwg::LineSegment{line.vertices[0].point, line.vertices[1].point}});
        else
            entities.push_back({kind, std::move(line)});
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

void LineWork::addSegment(dwg::LineKind kind, const gp_Pnt2d& from, const gp_Pnt2d& to)
{
    if (from.Distance(to) < Tolerance)
        return;
    auto group = std::find_if(m_lines.begin(), m_lines.end(), [&from, &to](const LineGroup& each) {
        return each.line.Distance(from) < Tolerance && each.line.Distance(to) < Tolerance;
    });
    if (group == m_lines.end())
        group = m_lines.insert(group, {gp_Lin2d(from, gp_Vec2d(from, to)), {}});
    const auto [first, last] =
        std::minmax({ElCLib::Parameter(group->line, from), ElCLib::Parameter(group->line, to)});
    unite(group->parts[indexOf(kind)], first, last, Tolerance);
}

/// It covers a straight line, whose ends are those of the circle's part or where the circle turns back.
void LineWork::addCircleSeenFromTheSide(dwg::LineKind kind, const gp_Circ& circle, double from, double to)
{
    const gp_Dir line = circle.Axis().Direction().Crossed(m_camera.toward);
    const double turn =
        ElCLib::Parameter(circle, circle.Location().Translated(circle.Radius() * gp_Vec(line)));
    double next = turn + std::ceil((from - turn) / Pi) * Pi;
    for (double before = from; before < to; next += Pi) {
        addLine(kind, ElCLib::Value(before, circle), ElCLib::Value(std::min(next, to), circle));
        before = next;
    }
}

LineWork::CircleGroup& LineWork::groupOf(const gp_Circ& circle)
{
    for (CircleGroup& group : m_circles)
        if (m_camera.project(group.circle.Location()).Distance(m_camera.project(circle.Location())) <
                Tolerance &&
            std::abs(group.circle.Radius() - circle.Radius()) < Tolerance &&
            group.circle.Axis().Direction().IsParallel(circle.Axis().Direction(), 1e-9))
            return group;
    return m_circles.emplace_back(CircleGroup{circle, {}});
}

void LineWork::addCircle(dwg::LineKind kind, const gp_Circ& circle, double from, double to)
{
    if (m_camera.seesFromTheSide(circle.Axis().Direction())) {
        addCircleSeenFromTheSide(kind, circle, from, to);
        return;
    }
    CircleGroup& group = groupOf(circle);
    const gp_Vec shift(circle.Location(), group.circle.Location());
    const bool sameSense = circle.Axis().Direction().Dot(group.circle.Axis().Direction()) > 0;
    const gp_Pnt start = ElCLib::Value(sameSense ? from : to, circle).Translated(shift);
    double first = ElCLib::Parameter(group.circle, start);
    first = first > 2 * Pi - 1e-9 ? 0 : first;
    const double last = first + to - from;
    const double tolerance = Tolerance / circle.Radius();
    Intrv_Intervals& parts = group.parts[indexOf(kind)];
    unite(parts, first, std::min(last, 2 * Pi), tolerance);
    if (last > 2 * Pi)
        unite(parts, 0, last - 2 * Pi, tolerance);
}

void LineWork::addPath(dwg::LineKind kind, const std::vector<gp_Pnt>& points)
{
    Path path{kind, {}, {}};
    for (const gp_Pnt& point : points) {
        path.points.push_back(m_camera.project(point));
        path.box.Add(path.points.back());
    }
    const gp_Pnt2d& from = path.points.front();
    const gp_Pnt2d& to = path.points.back();
    const auto isStraight = [&] {
        const gp_Lin2d chord(from, gp_Vec2d(from, to));
        return std::all_of(path.points.begin(), path.points.end(),
                           [&](const gp_Pnt2d& point) { return chord.Distance(point) < Tolerance; });
    };
    if (points.size() < 3 || (from.Distance(to) > Tolerance && isStraight()))
        addSegment(kind, from, to);
    else
        m_paths.push_back(path);
}

bool LineWork::Path::runsThrough(const gp_Pnt2d& point) const
{
    // Both curves are that far from the one that they stand for.
    constexpr double near = 3 * LargestDeviation;
    Bnd_Box2d surroundings = box;
    surroundings.Enlarge(near);
    if (surroundings.IsOut(point))
        return false;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const gp_Vec2d piece(points[i - 1], points[i]);
        const double square = std::max(piece.SquareMagnitude(), Tolerance * Tolerance);
        const double at = std::clamp(piece.Dot(gp_Vec2d(points[i - 1], point)) / square, 0.0, 1.0);
        if (points[i - 1].Translated(at * piece).Distance(point) < near)
            return true;
    }
    return false;
}

std::vector<dwg::Entity> LineWork::entities() const
{
    std::vector<dwg::Entity> entities;
    for (const dwg::LineKind kind :
         {dwg::LineKind::Outline, dwg::LineKind::Hidden, dwg::LineKind::Centre, dwg::LineKind::Thread}) {
        std::vector<dwg::Polyline> pieces;
        appendLines(pieces, kind);
        for (const CircleGroup& group : m_circles)
            appendCircle(entities, pieces, group, kind);
        appendPaths(pieces, kind);
        appendChains(entities, std::move(pieces), kind);
    }
    return entities;
}

void LineWork::appendLines(std::vector<dwg::Polyline>& pieces, dwg::LineKind kind) const
{
    for (const auto& [line, parts] : m_lines)
        for (const Intrv_Interval& part : partsToDraw(parts, kind, Tolerance))
            pieces.push_back(
                {{vertexAt(ElCLib::Value(part.Start(), line)), vertexAt(ElCLib::Value(part.End(), line))}});
}

void LineWork::appendCircle(std::vector<dwg::Entity>& entities, std::vector<dwg::Polyline>& pieces,
                            const CircleGroup& group, dwg::LineKind kind) const
{
    const bool isThread = group.parts[indexOf(dwg::LineKind::Thread)].NbIntervals() > 0;
    if (isThread && kind != dwg::LineKind::Thread)
        return;
    const gp_Circ& circle = group.circle;
    const double tolerance = Tolerance / circle.Radius();
    std::vector<Intrv_Interval> parts = partsToDraw(group.parts, kind, tolerance);
    const bool meets =
        !parts.empty() && parts.front().Start() < tolerance && parts.back().End() > 2 * Pi - tolerance;
    if (meets && parts.size() == 1 && m_camera.seesEndOn(circle.Axis().Direction())) {
        entities.push_back(
            {kind, dwg::Circle{vertexAt(m_camera.project(circle.Location())).point, circle.Radius()}});
        return;
    }
    if (meets && parts.size() > 1) {
        parts.front().SetStart(parts.back().Start() - 2 * Pi, 0);
        parts.pop_back();
    }
    for (const Intrv_Interval& part : parts)
        pieces.push_back(arc(circle, part.Start(), part.End()));
}

/// Seen end on, an arc is one or, beyond half a turn, several arcs of the polyline; else it is part of an
/// ellipse.
dwg::Polyline LineWork::arc(const gp_Circ& circle, double from, double to) const
{
    const bool endOn = m_camera.seesEndOn(circle.Axis().Direction());
    const double sense = circle.Axis().Direction().Dot(m_camera.toward) > 0 ? 1 : -1;
    const double largestStep =
        endOn ? Pi : std::min(LargestTurn, std::sqrt(8 * LargestDeviation / circle.Radius()));
    const double sweep = to - from;
    const int count = std::max(1, static_cast<int>(std::ceil(sweep / largestStep - 1e-9)));
    dwg::Polyline line;
    for (int i = 0; i <= count; ++i)
        line.vertices.push_back(vertexAt(m_camera.project(ElCLib::Value(from + i * sweep / count, circle)),
                                         endOn && i < count ? sense * std::tan(sweep / count / 4) : 0));
    return line;
}

/// Appends the pieces of free curves that no outline, and none of their own kind before them, covers.
void LineWork::appendPaths(std::vector<dwg::Polyline>& pieces, dwg::LineKind kind) const
{
    std::vector<const Path*> covers;
    if (kind == dwg::LineKind::Hidden)
        for (const Path& path : m_paths)
            if (path.kind == dwg::LineKind::Outline)
                covers.push_back(&path);
    for (const Path& path : m_paths) {
        if (path.kind != kind)
            continue;
        const auto isCovered = [&covers](const gp_Pnt2d& point) {
            return std::any_of(covers.begin(), covers.end(),
                               [&point](const Path* cover) { return cover->runsThrough(point); });
        };
        bool before = isCovered(path.points.front());
        bool drawn = false;
        for (std::size_t i = 1; i < path.points.size(); ++i) {
            const bool now = isCovered(path.points[i]);
            if (!(before && now)) {
                if (!drawn)
                    pieces.push_back({{vertexAt(path.points[i - 1])}});
                pieces.back().vertices.push_back(vertexAt(path.points[i]));
            }
            drawn = !(before && now);
            before = now;
        }
        covers.push_back(&path);
    }
}

} // namespace devcatalog
