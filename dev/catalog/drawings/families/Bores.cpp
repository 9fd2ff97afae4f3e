#include "dev/catalog/drawings/families/Bores.h"

#include "dev/catalog/drawings/solids/Revolution.h"

namespace devcatalog
{

Frame frameAlong(const Vector3& from, const Vector3& to)
{
    const Vector3 direction = normalized(to - from);
    return Frame::at(from, direction,
                     normalized(cross(direction, std::abs(direction.z) < 0.9 ? zAxis : xAxis)));
}

Profile keyedBore(double diameter)
{
    const double radius = diameter / 2;
    const double width = 0.28 * diameter;
    const double top = 1.22 * radius;
    const double half = std::asin(width / 2 / radius);
    const double shoulder = radius * std::cos(half);
    return {{{{-width / 2, shoulder}, std::tan((2 * pi - 2 * half) / 4)},
             {{width / 2, shoulder}, 0},
             {{width / 2, top}, 0},
             {{-width / 2, top}, 0}},
            true};
}

void addBoreWall(Solid& solid, Material material, const Vector3& from, const Vector3& to, double radius)
{
    const double depth = length(to - from);
    solid.add<Revolution>(material, frameAlong(from, to), openOutline({{radius, depth}, {radius, 0}}));
}

void drill(Solid& solid, Extrusion& body, Material material, const Vector3& from, const Vector3& to,
           double radius)
{
    body.pierce(from, to, radius);
    addBoreWall(solid, material, from, to, radius);
    solid.axes.push_back({from, to, radius});
}

void drillBlind(Solid& solid, Extrusion& body, Material material, const Vector3& mouth, const Vector3& end,
                double radius)
{
    body.pierce(mouth, end, radius);
    const double depth = length(end - mouth);
    solid.add<Revolution>(material, frameAlong(end, mouth),
                          openOutline({{radius, depth}, {radius, 0}, {0, 0}}));
    solid.axes.push_back({mouth, end, radius});
}

} // namespace devcatalog
