#include "dev/catalog/drawings/families/DriveParts.h"

#include "dev/catalog/drawings/families/ToothOutline.h"
#include "dev/catalog/drawings/solids/Shapes.h"

#include <BRepPrimAPI_MakeSphere.hxx>

#include <algorithm>
#include <cmath>
#include <iterator>
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

/// @return a ring of rectangular section.
TopoDS_Shape ring(const gp_Ax2& frame, double inner, double outer, double height)
{
    return revolved(frame, polygon({{inner, 0}, {outer, 0}, {outer, height}, {inner, height}}));
}

/// Rings with chamfers on the sides that fit a shaft and a housing.
void addRings(Solid& solid, const gp_Ax2& frame, const BearingSize& size)
{
    const double width = size.width;
    const double chamfer = std::min(0.06 * width, 0.12 * size.thickness());
    const double bore = size.bore / 2;
    const double outer = size.outer / 2;
    solid.bodies.push_back({Material::Steel, revolved(frame, polygon({{bore + chamfer, 0},
                                                                      {size.innerShoulder(), 0},
                                                                      {size.innerShoulder(), width},
                                                                      {bore + chamfer, width},
                                                                      {bore, width - chamfer},
                                                                      {bore, chamfer}}))});
    solid.bodies.push_back({Material::Steel, revolved(frame, polygon({{size.outerShoulder(), 0},
                                                                      {outer - chamfer, 0},
                                                                      {outer, chamfer},
                                                                      {outer, width - chamfer},
                                                                      {outer - chamfer, width},
                                                                      {size.outerShoulder(), width}}))});
}

void addBalls(Solid& solid, const gp_Ax2& frame, const BearingSize& size)
{
    const double pitchRadius = (size.bore + size.outer) / 4;
    const double radius = (size.outerShoulder() - size.innerShoulder()) / 2;
    const int count = static_cast<int>(2 * Pi * pitchRadius / (2.6 * radius));
    for (int i = 0; i < count; ++i) {
        const gp_Pnt centre = polarPoint(frame, pitchRadius, Pi / 2 + 2 * Pi * i / count, size.width / 2);
        solid.bodies.push_back({Material::Zinc, BRepPrimAPI_MakeSphere(centre, radius).Shape(), false});
    }
    solid.pitchCircles.push_back({frame, pitchRadius, 0});
}

/// Sealing discs, a little below the faces.
void addShields(Solid& solid, const gp_Ax2& frame, const BearingSize& size, Material material)
{
    const double depth = 0.06 * size.width;
    for (const double z : {depth, size.width - 2 * depth})
        solid.bodies.push_back(
            {material, ring(raised(frame, z), size.innerShoulder(), size.outerShoulder(), depth)});
}

/// @return a bore with a keyway at the top. Keyways by shaft diameter as in DIN 6885-1.
Outline keyedBore(double diameter)
{
    struct Keyway {
        double largestShaft;
        double width;
        double depthInHub;
    };
    static constexpr Keyway keyways[] = {{8, 2, 1},     {10, 3, 1.4}, {12, 4, 1.8},  {17, 5, 2.3},
                                         {22, 6, 2.8},  {30, 8, 3.3}, {38, 10, 3.3}, {44, 12, 3.3},
                                         {50, 14, 3.8}, {58, 16, 4.3}};
    const auto keyway = std::find_if(std::begin(keyways), std::end(keyways), [diameter](const Keyway& each) {
        return diameter <= each.largestShaft;
    });
    if (keyway == std::end(keyways))
        throw std::invalid_argument("no keyway for so large a bore");
    const double radius = diameter / 2;
    const double half = keyway->width / 2;
    const double angle = std::asin(half / radius);
    const double shoulder = radius * std::cos(angle);
    const double top = radius + keyway->depthInHub;
    return {{{-half, shoulder}, std::tan((2 * Pi - 2 * angle) / 4)},
            {{half, shoulder}, 0},
            {{half, top}, 0},
            {{-half, top}, 0}};
}

} // namespace

Solid ballBearing(const Dimensions& dimensions)
{
    Solid solid;
    const BearingSize size{dimensions("Bore"), dimensions("Outer diameter"), dimensions("Width")};
    const gp_Ax2 frame(gp_Pnt(), gp::DY(), gp::DX());
    addRings(solid, frame, size);
    const std::string sealing = dimensions.text("Sealing");
    if (sealing == "open")
        addBalls(solid, frame, size);
    else
        addShields(solid, frame, size, sealing == "2RS" ? Material::DarkPlastic : Material::Zinc);
    solid.axes.push_back({gp_Pnt(), gp_Pnt(0, size.width, 0), size.outer / 2});
    return solid;
}

Solid pillowBlock(const Dimensions& dimensions)
{
    Solid solid;
    const double half = dimensions("Length") / 2;
    const double centre = dimensions("Centre height");
    const double depth = dimensions("Depth");
    const double foot = 0.3 * centre;
    const double radius = dimensions("Housing radius");
    const double insert = 0.72 * radius;
    const double reach = dimensions("Bolt spacing") / 2;
    const double hole = dimensions("Bolt hole") / 2;
    const gp_Ax2 frame(gp_Pnt(0, depth / 2, 0), -gp::DY(), gp::DX());
    const Outline outline{{{-half, 0}, 0},      {{half, 0}, 0},        {{half, foot}, 0},
                          {{radius, foot}, 0},  {{radius, centre}, 1}, {{-radius, centre}, 0},
                          {{-radius, foot}, 0}, {{-half, foot}, 0}};
    std::vector<TopoDS_Shape> holes{
        cylinder(gp_Pnt(0, depth / 2, centre), gp_Pnt(0, -depth / 2, centre), insert)};
    for (const double x : {-reach, reach}) {
        holes.push_back(cylinder(gp_Pnt(x, 0, 0), gp_Pnt(x, 0, foot), hole));
        solid.axes.push_back({gp_Pnt(x, 0, 0), gp_Pnt(x, 0, foot), hole});
    }
    solid.bodies.push_back({Material::DarkPlastic, cut(prism(frame, outline, depth), holes)});
    // The insert bearing stands out at the front, where its inner ring is clamped to the shaft.
    const double bore = dimensions("Bore") / 2;
    const double collar = bore + 0.35 * (insert - bore);
    const gp_Ax2 bearing(gp_Pnt(0, 0.4 * depth, centre), -gp::DY(), gp::DX());
    solid.bodies.push_back({Material::Steel, revolved(bearing, polygon({{bore, 0},
                                                                        {insert, 0},
                                                                        {insert, 0.8 * depth},
                                                                        {collar, 0.8 * depth},
                                                                        {collar, 1.15 * depth},
                                                                        {bore, 1.15 * depth}}))});
    solid.axes.push_back({gp_Pnt(0, depth / 2, centre), gp_Pnt(0, -0.75 * depth, centre), radius});
    return solid;
}

Solid spurGear(const Dimensions& dimensions)
{
    Solid solid;
    const double module = dimensions("Module");
    const int teeth = dimensions.count("Teeth");
    const double width = dimensions("Face width");
    const double length = 1.6 * width;
    const double tip = module * (teeth + 2) / 2;
    const gp_Ax2 frame(gp_Pnt(), -gp::DY(), gp::DX());
    const Outline bore = keyedBore(dimensions("Bore"));
    const TopoDS_Shape hub =
        prism(raised(frame, width), circle(dimensions("Hub diameter") / 2), length - width, bore);
    // Seen from the side, gears are drawn without their teeth (ISO 2203).
    solid.bodies.push_back({Material::Steel,
                            fused({prism(frame, toothOutline(module, teeth), width, bore), hub}), true,
                            fused({prism(frame, circle(tip), width, bore), hub})});
    solid.axes.push_back({gp_Pnt(), gp_Pnt(0, -length, 0), tip});
    solid.pitchCircles.push_back({frame, module * teeth / 2, width});
    return solid;
}

Solid beltPulley(const Dimensions& dimensions)
{
    Solid solid;
    const int grooves = dimensions.count("Grooves");
    const double spacing = dimensions("Groove spacing");
    const double edge = dimensions("Edge distance");
    const double width = (grooves - 1) * spacing + 2 * edge;
    const double pitchRadius = dimensions("Pitch diameter") / 2;
    const double rise = dimensions("Groove rise");
    const double depth = dimensions("Groove depth");
    const double bore = dimensions("Bore") / 2;
    const double outer = pitchRadius + rise;
    const double bottom = outer - depth;
    const double flank = std::tan(dimensions("Groove angle") / 2 * Pi / 180);
    const double halfTop = dimensions("Belt width") / 2 + rise * flank;
    const double halfBottom = halfTop - depth * flank;
    const double rim = bottom - 0.45 * depth;
    const double hub = std::min(1.8 * bore, bore + 0.6 * (rim - bore));
    const double web = width * 0.3;
    std::vector<dwg::Point2> outline{{bore, 0}, {hub, 0}, {hub, web}, {rim, web}, {rim, 0}, {outer, 0}};
    for (int i = 0; i < grooves; ++i) {
        const double middle = edge + i * spacing;
        outline.insert(outline.end(), {{outer, middle - halfTop},
                                       {bottom, middle - halfBottom},
                                       {bottom, middle + halfBottom},
                                       {outer, middle + halfTop}});
    }
    outline.insert(
        outline.end(),
        {{outer, width}, {rim, width}, {rim, width - web}, {hub, width - web}, {hub, width}, {bore, width}});
    const gp_Ax2 frame(gp_Pnt(), -gp::DY(), gp::DX());
    solid.bodies.push_back({Material::Steel, revolved(frame, polygon(outline))});
    solid.axes.push_back({gp_Pnt(), gp_Pnt(0, -width, 0), outer});
    solid.pitchCircles.push_back({frame, pitchRadius, width});
    return solid;
}

Solid compressionSpring(const Dimensions& dimensions)
{
    Solid solid;
    const double wire = dimensions("Wire diameter");
    const double outer = dimensions("Outer diameter");
    const double height = dimensions("Free length");
    solid.coil = makeCoil((outer - wire) / 2, wire / 2, dimensions("Turns"), height);
    solid.axes.push_back({gp_Pnt(), gp_Pnt(0, 0, height), outer / 2});
    return solid;
}

} // namespace devcatalog
