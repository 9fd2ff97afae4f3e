#include "dev/catalog/drawings/families/Families.h"
#include "dev/catalog/drawings/families/Features.h"
#include "dev/catalog/drawings/solids/Shapes.h"

#include <ElCLib.hxx>

#include <algorithm>

namespace devcatalog
{

namespace
{

/// A profile's section: the right side from bottom to top, whose upper half mirrors the lower one, and the
/// others, which are the same, turned.
Outline slottedSquare(const Dimensions& given)
{
    const double half = given("Size") / 2;
    const double slot = given("Slot width") / 2;
    const double lip = half - given("Lip thickness");
    const double bottom = half - given("Slot depth");
    const double chamber = given("Slot inner width") / 2;
    const double knee = lip - 0.45 * (lip - bottom);
    const double rounding = 0.075 * half;
    Outline side{{half, rounding - half}, {half, -slot},    {lip, -slot},
                 {lip, -chamber},         {knee, -chamber}, {bottom, -0.45 * chamber}};
    for (std::size_t i = side.size(); i-- > 0;)
        side.push_back({side[i].x, -side[i].y});
    side.back().bulge = QuarterTurn;
    Outline outline = side;
    while (outline.size() < 4 * side.size()) {
        const auto& [x, y, bulge] = outline[outline.size() - side.size()];
        outline.push_back({-y, x, bulge});
    }
    return outline;
}

/// Adds the screw of an enclosure's lid, which has a slot.
/// @return the recess to cut from the lid.
TopoDS_Shape addLidScrew(Solid& solid, const gp_Pnt& seat, double radius, double lid)
{
    const gp_Ax2 frame(seat, gp::DZ(), gp::DX());
    const Outline slot = rectangle(-radius, -0.12 * radius, radius, 0.12 * radius);
    solid.add(Material::Steel,
              cut(cylinder(frame, 0.8 * radius, 0.25 * lid), {prism(raised(frame, 0.12 * lid), slot, lid)}));
    return hole(solid, seat, raised(frame, 0.5 * lid).Location(), radius);
}

} // namespace

void angleBracket(Solid& solid, const Dimensions& given)
{
    const double leg = given("Leg length");
    const double upright = given("Height");
    const double width = given("Width");
    const double thickness = given("Thickness");
    const double bend = 2 * thickness;
    const double radius = given("Hole diameter") / 2;
    const Outline outline{{bend, 0},         {leg, 0},
                          {leg, thickness},  {bend, thickness, -QuarterTurn},
                          {thickness, bend}, {thickness, upright},
                          {0, upright},      {0, bend, QuarterTurn}};
    const double alongLeg = (leg + bend) / 2;
    const double alongUpright = (upright + bend) / 2;
    const int count = given.count("Holes per leg");
    std::vector<TopoDS_Shape> holes;
    for (int i = 0; i < count; ++i) {
        const double y = width * ((i + 0.5) / count - 0.5);
        holes.push_back(hole(solid, {alongLeg, y, 0}, {alongLeg, y, thickness}, radius));
        holes.push_back(hole(solid, {0, y, alongUpright}, {thickness, y, alongUpright}, radius));
    }
    solid.add(Material::Zinc, cut(prism(towardFront(width / 2), outline, width), holes));
}

void aluminiumProfile(Solid& solid, const Dimensions& given)
{
    const double length = given("Length");
    const TopoDS_Shape bore = hole(solid, {}, {length, 0, 0}, given("Core hole") / 2);
    solid.add(Material::Aluminium, cut(prism(acrossX(0), slottedSquare(given), length), {bore}));
    solid.telling = Side::Right;
}

void pipeFlange(Solid& solid, const Dimensions& given)
{
    const double radius = given("Outer diameter") / 2;
    const double thickness = given("Thickness");
    const double bore = given("Bore") / 2;
    const double boltCircle = given("Bolt circle") / 2;
    const int count = given.count("Bolts");
    const double neck = given("Neck diameter") / 2;
    const double neckHeight = given("Neck height");
    const double end = thickness + neckHeight;
    const double mouth = bore + 0.55 * (neck - bore);
    const gp_Ax2 frame = towardFront();
    const Outline profile{{radius, 0},
                          {radius, thickness},
                          {neck, thickness},
                          {mouth, thickness + 0.7 * neckHeight},
                          {mouth, end}};
    std::vector<TopoDS_Shape> holes;
    for (int i = 0; i < count; ++i) {
        const gp_Pnt start = ElCLib::CircleValue(2 * Pi * (i + 0.5) / count, frame, boltCircle);
        holes.push_back(hole(solid, start, {start.X(), -thickness, start.Z()}, given("Bolt hole") / 2));
    }
    solid.add(Material::Steel, cut(turned(frame, profile, bore), holes));
    solid.axes.push_back({gp_Pnt(), gp_Pnt(0, -end, 0), radius});
    solid.pitchCircles.push_back({frame, boltCircle, 0});
}

void bridgeHandle(Solid& solid, const Dimensions& given)
{
    const double half = given("Hole spacing") / 2;
    const double radius = given("Grip diameter") / 2;
    const double middle = given("Height") - radius;
    const double diameter = given("Thread diameter");
    const double foot = 0.06 * middle;
    const double depth = foot + 2 * diameter;
    std::vector<TopoDS_Shape> bores;
    for (const double x : {-half, half}) {
        const gp_Ax2 frame(gp_Pnt(x, 0, 0), gp::DZ());
        bores.push_back(threadedBore(solid, frame, diameter, given("Pitch"), depth));
        solid.add(Material::DarkPlastic, cut(cylinder(frame, 1.35 * radius, foot), {bores.back()}));
        solid.axes.push_back({gp_Pnt(x, 0, 0), gp_Pnt(x, 0, depth), 1.35 * radius});
    }
    const std::vector<gp_Pnt> way{{-half, 0, foot}, {-half, 0, middle}, {half, 0, middle}, {half, 0, foot}};
    const TopoDS_Shape bar = bentBar(way, std::min(0.45 * middle, 2.5 * radius), radius);
    solid.add(Material::Aluminium, cut(bar, bores));
}

void enclosure(Solid& solid, const Dimensions& given)
{
    const double width = given("Width");
    const double depth = given("Depth");
    const double height = given("Height");
    const double wall = given("Wall thickness");
    const double lid = 0.22 * height;
    const double base = height - lid;
    const double corner = 0.06 * std::min(width, depth);
    const Outline outline = roundedRectangle(width, depth, corner);
    const Outline cavity = roundedRectangle(width - 2 * wall, depth - 2 * wall, std::max(0.3, corner - wall));
    std::vector<TopoDS_Shape> openings{prism(raised({}, wall), cavity, base)};
    for (const double side : {-0.5, 0.5})
        openings.push_back(hole(solid, {side * width, 0, base / 2}, {side * (width - 2 * wall), 0, base / 2},
                                given("Gland hole") / 2));
    solid.add(Material::LightPlastic, cut(prism({}, outline, base), openings));
    const double screw = 0.45 * corner + 1;
    const double inset = corner + 0.6 * screw;
    const double seat = base + 0.5 * lid;
    std::vector<TopoDS_Shape> recesses;
    for (const double x : {inset - width / 2, width / 2 - inset})
        for (const double y : {inset - depth / 2, depth / 2 - inset})
            recesses.push_back(addLidScrew(solid, {x, y, seat}, screw, lid));
    solid.add(Material::LightPlastic, cut(prism(raised({}, base), outline, lid), recesses));
    solid.telling = Side::Top;
}

} // namespace devcatalog
