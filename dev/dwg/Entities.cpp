#include "dev/dwg/Entities.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace dwg
{

namespace
{

bool isStraight(const PolylineVertex& vertex)
{
    return vertex.bulge == 0.0;
}

/// Makes an entity of each kind of shape.
class ShapeWriter
{
public:
    explicit ShapeWriter(const EntityPlace& place) : m_place(place) {}

    Object operator()(const LineSegment& line) const
    {
        Object object = beginEntity(ObjectType::Line, m_place);
        BitWriter& data = object.data();
        data.bit(true); // flat
        data.rawDouble(line.from.x);
        data.defaultDouble(line.to.x, line.from.x);
        data.rawDouble(line.from.y);
        data.defaultDouble(line.to.y, line.from.y);
        data.noThickness();
        data.flatExtrusion();
        return object;
    }

    Object operator()(const Circle& circle) const
    {
        Object object = beginEntity(ObjectType::Circle, m_place);
        BitWriter& data = object.data();
        data.bitDoubles({circle.centre.x, circle.centre.y, 0.0});
        data.bitDouble(circle.radius);
        data.noThickness();
        data.flatExtrusion();
        return object;
    }

    Object operator()(const Polyline& shape) const
    {
        constexpr int hasBulges = 0x10;
        constexpr int isClosed = 0x200;
        const Polyline polyline = withoutClosingArc(shape);
        const std::vector<PolylineVertex>& vertices = polyline.vertices;
        const auto count = static_cast<std::uint32_t>(vertices.size());
        // A closed line has its bulges even if all are zero: without them some readers leave it open.
        const bool withBulges = polyline.closed || !std::all_of(vertices.begin(), vertices.end(), isStraight);

        Object object = beginEntity(ObjectType::LwPolyline, m_place);
        BitWriter& data = object.data();
        data.bitShort((withBulges ? hasBulges : 0) | (polyline.closed ? isClosed : 0));
        data.bitLong(count);
        if (withBulges)
            data.bitLong(count);
        writeVertices(data, vertices);
        if (withBulges)
            for (const PolylineVertex& vertex : vertices)
                data.bitDouble(vertex.bulge);
        return object;
    }

private:
    static void writeVertices(BitWriter& data, const std::vector<PolylineVertex>& vertices)
    {
        data.rawPoint(vertices.front().point);
        for (std::size_t index = 1; index < vertices.size(); ++index) {
            const Point2 before = vertices[index - 1].point;
            const Point2 point = vertices[index].point;
            data.defaultDouble(point.x, before.x);
            data.defaultDouble(point.y, before.y);
        }
    }

    EntityPlace m_place;
};

/// The place of the drawing's entity of this index.
EntityPlace placeOf(std::size_t index, const Document& document)
{
    EntityPlace place;
    place.handle = document.firstEntity + static_cast<Handle>(index);
    place.layer = document.layerOf(document.entities[index]).handle;
    place.linetypeScale = document.linetypeScale;
    const bool first = place.handle == document.firstEntity;
    const bool last = place.handle == document.lastEntity();
    place.betweenNeighbours = !first && !last;
    place.previous = first ? handles::None : place.handle - 1;
    place.next = last ? handles::None : place.handle + 1;
    return place;
}

} // namespace

Object beginEntity(ObjectType type, const EntityPlace& place)
{
    constexpr int byLayer = 256;
    constexpr unsigned lineweightByLayer = 29;
    Object object(type, place.handle);
    BitWriter& data = object.data();
    data.bit(false); // no picture of it
    data.bitPair(static_cast<unsigned>(place.space));
    data.bitLong(0); // reactors
    data.bit(place.betweenNeighbours);
    data.colour(byLayer);
    data.bitDouble(place.linetypeScale);
    data.bitPair(0);  // linetype by layer
    data.bitPair(0);  // plot style by layer
    data.bitShort(0); // visible
    data.rawChar(lineweightByLayer);

    object.refer(hardOwner(handles::None));
    if (!place.betweenNeighbours) {
        object.refer(softPointer(place.previous));
        object.refer(softPointer(place.next));
    }
    object.refer(hardPointer(place.layer));
    return object;
}

Object shapeEntity(const Shape& shape, const EntityPlace& place)
{
    return std::visit(ShapeWriter(place), shape);
}

Polyline withoutClosingArc(Polyline polyline)
{
    std::vector<PolylineVertex>& vertices = polyline.vertices;
    if (!polyline.closed)
        vertices.back().bulge = 0.0; // means nothing
    if (isStraight(vertices.back()))
        return polyline;
    const auto straight = std::find_if(vertices.begin(), vertices.end(), isStraight);
    if (straight != vertices.end()) {
        std::rotate(vertices.begin(), std::next(straight), vertices.end());
    } else {
        vertices.push_back({vertices.front().point, 0.0});
        polyline.closed = false;
    }
    return polyline;
}

void addEntities(Records& records, const Document& document)
{
    for (std::size_t index = 0; index < document.entities.size(); ++index)
        addRecord(records, shapeEntity(document.entities[index].shape, placeOf(index, document)));
}

} // namespace dwg
