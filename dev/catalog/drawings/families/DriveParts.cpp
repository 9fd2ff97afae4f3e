#include "dev/catalog/drawings/families/Families.h"
#include "dev/catalog/drawings/families/Features.h"
#include "dev/catalog/drawings/families/ToothOutline.h"
#include "dev/catalog/drawings/solids/Shapes.h"

#include <BRepPrimAPI_MakeSphere.hxx>
#include <ElCLib.hxx>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace devcatalog
{

namespace
{

/// The diameters and the width that all rolling bearings have.
struct BearingSize {
    double bore;
    double outer;
    double width;

    double thickness() const { return (outer - bore) / 2; }
    double innerShoulder() const { return bore / 2 + 0.26 * thickness(); }
    double outerShoulder() const { return outer / 2 - 0.26 * thickness(); }
};

/// Rings with chamfers on the sides that fit a shaft and a housing.
void addRings(Solid& solid, const gp_Ax2& frame, const BearingSize& size)
{
    const double width = size.width;
    const double chamfer = std::min(0.06 * width, 0.12 * size.thickness());
    const double bore = size.bore / 2;
    const double outer = size.outer / 2;
    const double inside = size.innerShoulder();
    const Outline inner{{bore + chamfer, 0},     {inside, 0},    {inside, width}, {bore + chamfer, width},
                        {bore, width - chamfer}, {bore, chamfer}};
    const Outline around{
        {outer - chamfer, 0}, {outer, chamfer}, {outer, width - chamfer}, {outer - chamfer, width}};
    solid.add(Material::Steel, revolved(frame, inner));
    solid.add(Material::Steel, turned(frame, around, size.outerShoulder()));
}

void addBalls(Solid& solid, const gp_Ax2& frame, const BearingSize& size)
{
    const double pitchRadius = (size.bore + size.outer) / 4;
    const double radius = (size.outerShoulder() - size.innerShoulder()) / 2;
    const int count = static_cast<int>(2 * Pi * pitchRadius / (2.6 * radius));
    const gp_Ax2 middle = raised(frame, size.width / 2);
    for (int i = 0; i < count; ++i) {
        const gp_Pnt centre = ElCLib::CircleValue(Pi / 2 + 2 * Pi * i / count, middle, pitchRadius);
        solid.bodies.push_back({Material::Zinc, BRepPrimAPI_MakeSphere(centre, radius).Shape(), false});
    }
    solid.pitchCircles.push_back({frame, pitchRadius, 0});
}

/// Sealing discs, a little below the faces.
void addShields(Solid& solid, const gp_Ax2& frame, const BearingSize& size, Material material)
{
    const double depth = 0.06 * size.width;
    const double edge = size.outerShoulder();
    for (const double z : {depth, size.width - 2 * depth})
        solid.add(material, turned(raised(frame, z), {{edge, 0}, {edge, depth}}, size.innerShoulder()));
}

/// @return a bore with a keyway at the top. Keyways by shaft diameter as in DIN 6885-1.
Outline keyedBore(double diameter)
{
    // The largest shaft, the width and the depth in the hub.
    static constexpr double keyways[][3] = {{8, 2, 1},     {10, 3, 1.4}, {12, 4, 1.8},  {17, 5, 2.3},
                                            {22, 6, 2.8},  {30, 8, 3.3}, {38, 10, 3.3}, {44, 12, 3.3},
                                            {50, 14, 3.8}, {58, 16, 4.3}};
    for (const auto& [largestShaft, width, depth] : keyways) {
        if (diameter > largestShaft)
            continue;
        const double radius = diameter / 2;
        const double half = width / 2;
        const double top = radius + depth;
        const double angle = std::asin(half / radius);
        const double shoulder = radius * std::cos(angle);
        return {{-half, shoulder, std::tan((Pi - angle) / 2)}, {half, shoulder}, {half, top}, {-half, top}};
    }
    throw std::invalid_argument("no keyway for so large a bore");
}

/// The profile of a belt pulley's grooves.
Outline groovesOf(const Dimensions& given, double outer)
{
    const double depth = given("Groove depth");
    const double flank = std::tan(given("Groove angle") / 2 * Pi / 180);
    const double halfTop = given("Belt width") / 2 + given("Groove rise") * flank;
    const double halfBottom = halfTop - depth * flank;
    const int count = given.count("Grooves");
    Outline profile;
    for (int i = 0; i < count; ++i) {
        const double middle = given("Edge distance") + i * given("Groove spacing");
        profile.push_back({outer, middle - halfTop});
        profile.push_back({outer - depth, middle - halfBottom});
        profile.push_back({outer - depth, middle + halfBottom});
        profile.push_back({outer, middle + halfTop});
    }
    return profile;
}

} // namespace

void ballBearing(Solid& solid, const Dimensions& given)
{
    const BearingSize size{given("Bore"), given("Outer diameter"), given("Width")};
    const gp_Ax2 frame(gp_Pnt(), gp::DY(), gp::DX());
    addRings(solid, frame, size);
    const std::string sealing = given.text("Sealing");
    if (sealing == "open")
        addBalls(solid, frame, size);
    else
        addShields(solid, frame, size, sealing == "2RS" ? Material::DarkPlastic : Material::Zinc);
    solid.axes.push_back({gp_Pnt(), gp_Pnt(0, size.width, 0), size.outer / 2});
}

void pillowBlock(Solid& solid, const Dimensions& given)
{
    const double half = given("Length") / 2;
    const double centre = given("Centre height");
    const double depth = given("Depth");
    const double foot = 0.3 * centre;
    const double radius = given("Housing radius");
    const double insert = 0.72 * radius;
    const double reach = given("Bolt spacing") / 2;
    const gp_Pnt back(0, depth / 2, centre);
    const Outline outline{{-half, 0},          {half, 0},         {half, foot},    {radius, foot},
                          {radius, centre, 1}, {-radius, centre}, {-radius, foot}, {-half, foot}};
    std::vector<TopoDS_Shape> holes{cylinder(back, {0, -depth / 2, centre}, insert)};
    for (const double x : {-reach, reach})
        holes.push_back(hole(solid, {x, 0, 0}, {x, 0, foot}, given("Bolt hole") / 2));
    solid.add(Material::DarkPlastic, cut(prism(towardFront(depth / 2), outline, depth), holes));
    // The insert bearing stands out at the front, where its inner ring is clamped to the shaft.
    const double bore = given("Bore") / 2;
    const double collar = bore + 0.35 * (insert - bore);
    const Outline profile{{insert, 0}, {insert, 0.8 * depth}, {collar, 0.8 * depth}, {collar, 1.15 * depth}};
    solid.add(Material::Steel, turned(towardFront(0.4 * depth, centre), profile, bore));
    solid.axes.push_back({back, gp_Pnt(0, -0.75 * depth, centre), radius});
}

void spurGear(Solid& solid, const Dimensions& given)
{
    const double module = given("Module");
    const int teeth = given.count("Teeth");
    const double width = given("Face width");
    const double length = 1.6 * width;
    const double tip = module * (teeth + 2) / 2;
    const gp_Ax2 frame = towardFront();
    const Outline bore = keyedBore(given("Bore"));
    const gp_Ax2 seat = raised(frame, width);
    const TopoDS_Shape hub = prism(seat, circle(given("Hub diameter") / 2), length - width, bore);
    // Seen from the side, gears are drawn without their teeth (ISO 2203).
    solid.bodies.push_back({Material::Steel,
                            joined(prism(frame, toothOutline(module, teeth), width, bore), hub, {seat}), true,
                            joined(prism(frame, circle(tip), width, bore), hub, {seat})});
    solid.axes.push_back({gp_Pnt(), gp_Pnt(0, -length, 0), tip});
    solid.pitchCircles.push_back({frame, module * teeth / 2, width});
}

void beltPulley(Solid& solid, const Dimensions& given)
{
    const double width = (given.count("Grooves") - 1) * given("Groove spacing") + 2 * given("Edge distance");
    const double pitchRadius = given("Pitch diameter") / 2;
    const double outer = pitchRadius + given("Groove rise");
    const double rim = outer - 1.45 * given("Groove depth");
    const double bore = given("Bore") / 2;
    const double hub = std::min(1.8 * bore, bore + 0.6 * (rim - bore));
    const double web = width * 0.3;
    Outline profile{{hub, 0}, {hub, web}, {rim, web}, {rim, 0}, {outer, 0}};
    const Outline grooves = groovesOf(given, outer);
    profile.insert(profile.end(), grooves.begin(), grooves.end());
    const Outline end{{outer, width}, {rim, width}, {rim, width - web}, {hub, width - web}, {hub, width}};
    profile.insert(profile.end(), end.begin(), end.end());
    const gp_Ax2 frame = towardFront();
    solid.add(Material::Steel, turned(frame, profile, bore));
    solid.axes.push_back({gp_Pnt(), gp_Pnt(0, -width, 0), outer});
    solid.pitchCircles.push_back({frame, pitchRadius, width});
}

void compressionSpring(Solid& solid, const Dimensions& given)
{
    const double wire = given("Wire diameter");
    const double outer = given("Outer diameter");
    const double height = given("Free length");
    solid.coil = makeCoil((outer - wire) / 2, wire / 2, given("Turns"), height);
    solid.axes.push_back({gp_Pnt(), gp_Pnt(0, 0, height), outer / 2});
}

} // namespace devcatalog
