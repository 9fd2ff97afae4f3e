#include "tests/catalog/DrawingPieces.h"

#include <algorithm>
#include <cmath>

using namespace dwg;

namespace test
{

namespace
{

bool areNear(const Point2& a, const Point2& b)
{
    return std::hypot(b.x - a.x, b.y - a.y) < 1e-4;
}

} // namespace

double DrawingPiece::length() const
{
    return std::hypot(to.x - from.x, to.y - from.y);
}

Point2 DrawingPiece::middle() const
{
    // An arc's middle lies to the right of its chord, by the bulge times half of it.
    return {(from.x + to.x) / 2 + bulge * (to.y - from.y) / 2,
            (from.y + to.y) / 2 - bulge * (to.x - from.x) / 2};
}

bool DrawingPiece::mayReach(const Point2& point, double tolerance) const
{
    // An arc's diameter is its chord, or more by its bulge.
    const double reach = length() * std::max(1.0, (std::abs(bulge) + 1 / std::max(std::abs(bulge), 1.0)) / 2);
    return std::hypot(point.x - from.x, point.y - from.y) <= reach + length() + tolerance;
}

double DrawingPiece::distanceTo(const Point2& point) const
{
    // Halved until the pieces are as good as straight.
    if (std::abs(bulge) > 0.01) {
        const double half = std::tan(std::atan(bulge) / 2);
        return std::min(DrawingPiece{kind, from, middle(), half}.distanceTo(point),
                        DrawingPiece{kind, middle(), to, half}.distanceTo(point));
    }
    const Point2 along{to.x - from.x, to.y - from.y};
    const double squared = along.x * along.x + along.y * along.y;
    const double fraction = ((point.x - from.x) * along.x + (point.y - from.y) * along.y) / squared;
    const double nearest = std::clamp(fraction, 0.0, 1.0);
    return std::hypot(point.x - from.x - nearest * along.x, point.y - from.y - nearest * along.y);
}

bool DrawingPiece::covers(const DrawingPiece& other) const
{
    if (bulge != 0 || other.bulge != 0)
        return kind == other.kind &&
               ((areNear(from, other.from) && areNear(to, other.to) &&
                 std::abs(bulge - other.bulge) < 1e-3) ||
                (areNear(from, other.to) && areNear(to, other.from) && std::abs(bulge + other.bulge) < 1e-3));
    const Point2 along{(to.x - from.x) / length(), (to.y - from.y) / length()};
    const auto beside = [&](const Point2& point) {
        return along.x * (point.y - from.y) - along.y * (point.x - from.x);
    };
    const auto position = [&](const Point2& point) {
        return along.x * (point.x - from.x) + along.y * (point.y - from.y);
    };
    constexpr double tolerance = 1e-5;
    if (std::abs(beside(other.from)) > tolerance || std::abs(beside(other.to)) > tolerance)
        return false;
    const double first = std::min(position(other.from), position(other.to));
    const double last = std::max(position(other.from), position(other.to));
    return std::min(last, length()) - std::max(first, 0.0) > 100 * tolerance;
}

QString DrawingPiece::toString() const
{
    return QString::asprintf("kind %d from %g, %g to %g, %g bulge %g", static_cast<int>(kind), from.x, from.y,
                             to.x, to.y, bulge);
}

std::vector<DrawingPiece> piecesOf(const Drawing& drawing, std::optional<LineKind> kind)
{
    std::vector<DrawingPiece> pieces;
    for (const Entity& entity : drawing.entities) {
        if (kind && *kind != entity.kind)
            continue;
        if (const auto* line = std::get_if<LineSegment>(&entity.shape))
            pieces.push_back({entity.kind, line->from, line->to, 0});
        const auto* polyline = std::get_if<Polyline>(&entity.shape);
        if (!polyline)
            continue;
        const auto& vertices = polyline->vertices;
        for (std::size_t i = 0; i + (polyline->closed ? 0 : 1) < vertices.size(); ++i)
            pieces.push_back({entity.kind, vertices[i].point, vertices[(i + 1) % vertices.size()].point,
                              vertices[i].bulge});
    }
    return pieces;
}

std::vector<Circle> circlesOf(const Drawing& drawing, LineKind kind)
{
    std::vector<Circle> circles;
    for (const Entity& entity : drawing.entities)
        if (const auto* circle = std::get_if<Circle>(&entity.shape); circle && entity.kind == kind)
            circles.push_back(*circle);
    return circles;
}

std::vector<Entity> edgesOf(const Drawing& drawing)
{
    std::vector<Entity> edges;
    std::copy_if(drawing.entities.begin(), drawing.entities.end(), std::back_inserter(edges),
                 [](const Entity& entity) { return entity.kind != LineKind::Centre; });
    return edges;
}

} // namespace test
