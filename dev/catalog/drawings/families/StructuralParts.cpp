#include "dev/catalog/drawings/families/StructuralParts.h"

#include "dev/catalog/drawings/families/Threads.h"
#include "dev/catalog/drawings/solids/Shapes.h"

#include <algorithm>
#include <cmath>

namespace devcatalog
{

namespace
{

/// A hole between two points, with its centre line.
TopoDS_Shape hole(Solid& solid, const gp_Pnt& from, const gp_Pnt& to, double radius)
{
    solid.axes.push_back({from, to, radius});
    return cylinder(from, to, radius);
}

} // namespace

Solid angleBracket(const Dimensions& dimensions)
{
    Solid solid;
    const double leg = dimensions("Leg length");
    const double upright = dimensions("Height");
    const double width = dimensions("Width");
    const double thickness = dimensions("Thickness");
    const double bend = 2 * thickness;
    const double radius = dimensions("Hole diameter") / 2;
    const Outline outline{{{bend, 0}, 0},         {{leg, 0}, 0},
                          {{leg, thickness}, 0},  {{bend, thickness}, -QuarterTurn},
                          {{thickness, bend}, 0}, {{thickness, upright}, 0},
                          {{0, upright}, 0},      {{0, bend}, QuarterTurn}};
    const double alongLeg = (leg + bend) / 2;
    const double alongUpright = (upright + bend) / 2;
    const int count = dimensions.count("Holes per leg");
    std::vector<TopoDS_Shape> holes;
    for (int i = 0; i < count; ++i) {
        const double y = width * ((i + 0.5) / count - 0.5);
        holes.push_back(hole(solid, {alongLeg, y, 0}, {alongLeg, y, thickness}, radius));
        holes.push_back(hole(solid, {0, y, alongUpright}, {thickness, y, alongUpright}, radius));
    }
    const gp_Ax2 frame(gp_Pnt(0, width / 2, 0), -gp::DY(), gp::DX());
    solid.bodies.push_back({Material::Zinc, cut(prism(frame, outline, width), holes)});
    return solid;
}

Solid aluminiumProfile(const Dimensions& dimensions)
{
    Solid solid;
    const double half = dimensions("Size") / 2;
    const double slot = dimensions("Slot width") / 2;
    const double lip = half - dimensions("Lip thickness");
    const double bottom = half - dimensions("Slot depth");
    const double chamber = dimensions("Slot inner width") / 2;
    const double knee = lip - 0.45 * (lip - bottom);
    const double rounding = 0.075 * half;
    const double length = dimensions("Length");
    // The right side from bottom to top; the others are the same, turned.
    const Outline side{{{half, -half + rounding}, 0},
                       {{half, -slot}, 0},
                       {{lip, -slot}, 0},
                       {{lip, -chamber}, 0},
                       {{knee, -chamber}, 0},
                       {{bottom, -0.45 * chamber}, 0},
                       {{bottom, 0.45 * chamber}, 0},
                       {{knee, chamber}, 0},
                       {{lip, chamber}, 0},
                       {{lip, slot}, 0},
                       {{half, slot}, 0},
                       {{half, half - rounding}, QuarterTurn}};
    Outline outline;
    for (int turn = 0; turn < 4; ++turn)
        for (dwg::PolylineVertex vertex : side) {
            for (int i = 0; i < turn; ++i)
                vertex.point = {-vertex.point.y, vertex.point.x};
            outline.push_back(vertex);
        }
    const double core = dimensions("Core hole") / 2;
    const TopoDS_Shape bore = hole(solid, {}, {length, 0, 0}, core);
    solid.bodies.push_back({Material::Aluminium, cut(prism(acrossX(0), outline, length), {bore})});
    solid.telling = Side::Right;
    return solid;
}

Solid pipeFlange(const Dimensions& dimensions)
{
    Solid solid;
    const double radius = dimensions("Outer diameter") / 2;
    const double thickness = dimensions("Thickness");
    const double bore = dimensions("Bore") / 2;
    const double boltCircle = dimensions("Bolt circle") / 2;
    const int count = dimensions.count("Bolts");
    const double neck = dimensions("Neck diameter") / 2;
    const double neckHeight = dimensions("Neck height");
    const double mouth = bore + 0.55 * (neck - bore);
    const gp_Ax2 frame(gp_Pnt(), -gp::DY(), gp::DX());
    const TopoDS_Shape ring = revolved(frame, polygon({{bore, 0},
                                                       {radius, 0},
                                                       {radius, thickness},
                                                       {neck, thickness},
                                                       {mouth, thickness + 0.7 * neckHeight},
                                                       {mouth, thickness + neckHeight},
                                                       {bore, thickness + neckHeight}}));
    std::vector<TopoDS_Shape> holes;
    for (int i = 0; i < count; ++i) {
        const double angle = 2 * Pi * (i + 0.5) / count;
        holes.push_back(hole(solid, polarPoint(frame, boltCircle, angle, 0),
                             polarPoint(frame, boltCircle, angle, thickness), dimensions("Bolt hole") / 2));
    }
    solid.bodies.push_back({Material::Steel, cut(ring, holes)});
    solid.axes.push_back({gp_Pnt(), gp_Pnt(0, -thickness - neckHeight, 0), radius});
    solid.pitchCircles.push_back({frame, boltCircle, 0});
    return solid;
}

Solid bridgeHandle(const Dimensions& dimensions)
{
    Solid solid;
    const double half = dimensions("Hole spacing") / 2;
    const double radius = dimensions("Grip diameter") / 2;
    const double middle = dimensions("Height") - radius;
    const double diameter = dimensions("Thread diameter");
    const double foot = 0.06 * middle;
    const TopoDS_Shape bar =
        bentBar({{-half, 0, foot}, {-half, 0, middle}, {half, 0, middle}, {half, 0, foot}},
                std::min(0.45 * middle, 2.5 * radius), radius);
    std::vector<TopoDS_Shape> bores;
    for (const double x : {-half, half}) {
        const double depth = foot + 2 * diameter;
        bores.push_back(
            threadedBore(solid, gp_Ax2(gp_Pnt(x, 0, 0), gp::DZ()), diameter, dimensions("Pitch"), depth));
        const TopoDS_Shape disc = cylinder(gp_Ax2(gp_Pnt(x, 0, 0), gp::DZ()), 1.35 * radius, foot);
        solid.bodies.push_back({Material::DarkPlastic, cut(disc, {bores.back()})});
        solid.axes.push_back({gp_Pnt(x, 0, 0), gp_Pnt(x, 0, depth), 1.35 * radius});
    }
    solid.bodies.push_back({Material::Aluminium, cut(bar, bores)});
    return solid;
}

Solid enclosure(const Dimensions& dimensions)
{
    Solid solid;
    const double width = dimensions("Width");
    const double depth = dimensions("Depth");
    const double height = dimensions("Height");
    const double wall = dimensions("Wall thickness");
    const double lid = 0.22 * height;
    const double base = height - lid;
    const double corner = 0.06 * std::min(width, depth);
    const Outline outline = roundedRectangle(width, depth, corner);
    const Outline cavity = roundedRectangle(width - 2 * wall, depth - 2 * wall, std::max(0.3, corner - wall));
    std::vector<TopoDS_Shape> openings{prism(raised(gp_Ax2(), wall), cavity, base)};
    for (const double side : {-0.5, 0.5})
        openings.push_back(hole(solid, {side * width, 0, base / 2}, {side * (width - 2 * wall), 0, base / 2},
                                dimensions("Gland hole") / 2));
    solid.bodies.push_back({Material::LightPlastic, cut(prism(gp_Ax2(), outline, base), openings)});
    const double screw = 0.45 * corner + 1;
    const double inset = corner + 0.6 * screw;
    const double seat = base + 0.5 * lid;
    std::vector<TopoDS_Shape> recesses;
    for (const double x : {inset - width / 2, width / 2 - inset})
        for (const double y : {inset - depth / 2, depth / 2 - inset}) {
            recesses.push_back(hole(solid, {x, y, seat}, {x, y, height}, screw));
            const gp_Ax2 frame(gp_Pnt(x, y, seat), gp::DZ(), gp::DX());
            const TopoDS_Shape slot = prism(raised(frame, 0.12 * lid),
                                            polygon({{-screw, -0.12 * screw},
                                                     {screw, -0.12 * screw},
                                                     {screw, 0.12 * screw},
                                                     {-screw, 0.12 * screw}}),
                                            lid);
            solid.bodies.push_back({Material::Steel, cut(cylinder(frame, 0.8 * screw, 0.25 * lid), {slot})});
        }
    solid.bodies.push_back(
        {Material::LightPlastic, cut(prism(raised(gp_Ax2(), base), outline, lid), recesses)});
    solid.telling = Side::Top;
    return solid;
}

} // namespace devcatalog
