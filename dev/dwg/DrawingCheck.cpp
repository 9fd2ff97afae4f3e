#include "dev/dwg/DrawingCheck.h"

#include "dev/dwg/DrawingExtents.h"

#include <cmath>
#include <cstddef>
#include <stdexcept>
#include <string>

namespace dwg
{

namespace
{

/// In drawing units: beyond any part, far within what doubles and CAD programs hold exactly enough.
constexpr double LargestCoordinate = 1.0e9;
/// An arc with this bulge is a circle but for a four-millionth of a turn.
constexpr double LargestBulge = 1.0e6;
/// Keeps a polyline below 32 KB; some readers show nothing of a drawing that has a larger object.
constexpr std::size_t MostVertices = 1000;
constexpr std::size_t MostPoints = 1'000'000;

[[noreturn]] void fail(std::size_t entityIndex, const std::string& fault)
{
    throw std::invalid_argument("Entity " + std::to_string(entityIndex) + " of the drawing: " + fault);
}

/// Checks one entity's shape and returns the number of its points.
class ShapeCheck
{
public:
    explicit ShapeCheck(std::size_t entityIndex) : m_entityIndex(entityIndex) {}

    std::size_t operator()(const LineSegment& line) const
    {
        checkPoint(line.from);
        checkPoint(line.to);
        return 2;
    }

    std::size_t operator()(const Circle& circle) const
    {
        checkPoint(circle.centre);
        checkNumber(circle.radius, "radius");
        if (circle.radius <= 0.0)
            fail(m_entityIndex, "the radius is not positive");
        return 1;
    }

    std::size_t operator()(const Polyline& polyline) const
    {
        const std::size_t count = polyline.vertices.size();
        if (count < 2 || count > MostVertices)
            fail(m_entityIndex, "the polyline does not have 2 to 1000 vertices");
        for (const PolylineVertex& vertex : polyline.vertices) {
            checkPoint(vertex.point);
            checkNumber(vertex.bulge, "bulge");
            if (std::abs(vertex.bulge) > LargestBulge)
                fail(m_entityIndex, "the bulge is too large");
        }
        return count;
    }

private:
    void checkPoint(Point2 point) const
    {
        checkNumber(point.x, "x coordinate");
        checkNumber(point.y, "y coordinate");
    }

    void checkNumber(double number, const char* name) const
    {
        if (!std::isfinite(number))
            fail(m_entityIndex, std::string("the ") + name + " is not a finite number");
    }

    std::size_t m_entityIndex;
};

void checkReach(const Drawing& drawing)
{
    const std::optional<Extents> extents = extentsOf(drawing.entities);
    if (!extents)
        return;
    for (const double edge : {extents->min.x, extents->min.y, extents->max.x, extents->max.y})
        if (std::abs(edge) > LargestCoordinate)
            throw std::invalid_argument("The drawing reaches beyond 1e9 units from its origin");
}

} // namespace

void checkDrawing(const Drawing& drawing)
{
    std::size_t points = 0;
    for (std::size_t index = 0; index < drawing.entities.size(); ++index)
        points += std::visit(ShapeCheck(index), drawing.entities[index].shape);
    if (points > MostPoints)
        throw std::invalid_argument("The drawing has more than a million points");
    if (!(drawing.linetypeScale > 0.0) || !std::isfinite(drawing.linetypeScale))
        throw std::invalid_argument("The drawing's linetype scale is not a positive number");
    checkReach(drawing);
}

} // namespace dwg
