#include "dev/dwg/DrawingExtents.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace dwg
{

namespace
{

/// An arc flatter than this is taken for its chord: its centre is too far away to compute with.
constexpr double FlattestBulge = 1.0e-6;

class ExtentsCollector
{
public:
    void operator()(const LineSegment& line)
    {
        include(line.from);
        include(line.to);
    }

    void operator()(const Circle& circle)
    {
        include({circle.centre.x - circle.radius, circle.centre.y - circle.radius});
        include({circle.centre.x + circle.radius, circle.centre.y + circle.radius});
    }

    void operator()(const Polyline& polyline)
    {
        const std::vector<PolylineVertex>& vertices = polyline.vertices;
        for (std::size_t index = 0; index < vertices.size(); ++index) {
            include(vertices[index].point);
            const bool last = index + 1 == vertices.size();
            if (std::abs(vertices[index].bulge) > FlattestBulge && (!last || polyline.closed))
                includeArc(vertices[index], vertices[last ? 0 : index + 1].point);
        }
    }

    const std::optional<Extents>& extents() const { return m_extents; }

private:
    void include(Point2 point)
    {
        if (!m_extents) {
            m_extents = Extents{point, point};
            return;
        }
        m_extents->min = {std::min(m_extents->min.x, point.x), std::min(m_extents->min.y, point.y)};
        m_extents->max = {std::max(m_extents->max.x, point.x), std::max(m_extents->max.y, point.y)};
    }

    /// Includes those of the circle's east, north, west and south points that lie on the arc.
    void includeArc(const PolylineVertex& start, Point2 end)
    {
        const Point2 from = start.point;
        const Point2 chord = {end.x - from.x, end.y - from.y};
        const double apothem = (1.0 - start.bulge * start.bulge) / (4.0 * start.bulge);
        const Point2 centre = {(from.x + end.x) / 2.0 - chord.y * apothem,
                               (from.y + end.y) / 2.0 + chord.x * apothem};
        const double radius = std::hypot(from.x - centre.x, from.y - centre.y);
        const std::array<Point2, 4> outermost = {Point2{centre.x + radius, centre.y},
                                                 {centre.x, centre.y + radius},
                                                 {centre.x - radius, centre.y},
                                                 {centre.x, centre.y - radius}};
        for (const Point2 point : outermost) {
            // A counter-clockwise arc lies to the right of its chord.
            const double side = chord.x * (point.y - from.y) - chord.y * (point.x - from.x);
            if (side * start.bulge < 0.0)
                include(point);
        }
    }

    std::optional<Extents> m_extents;
};

} // namespace

std::optional<Extents> extentsOf(const std::vector<Entity>& entities)
{
    ExtentsCollector collector;
    for (const Entity& entity : entities)
        std::visit(collector, entity.shape);
    return collector.extents();
}

} // namespace dwg
