#include "dev/catalog/drawings/families/Families.h"
#include "dev/catalog/drawings/families/Features.h"
#include "dev/catalog/drawings/solids/Shapes.h"

#include <cmath>

namespace devcatalog
{

namespace
{

/// Adds a head toward -x and a shank toward x, as one.
/// @param partialThread length of the thread where the shank is not threaded whole.
void addBolt(Solid& solid, const TopoDS_Shape& head, double headRadius, const Dimensions& given,
             double partialThread)
{
    const double length = given("Length");
    const gp_Ax2 frame(gp_Pnt(), gp::DX(), gp::DZ());
    const TopoDS_Shape shank = threadedShank(solid, frame, given("Thread diameter"), given("Pitch"), length,
                                             given.text("Thread") == "partial" ? partialThread : length);
    solid.add(Material::Steel, joined(head, shank, {frame}));
    solid.axes.push_back({gp_Pnt(-given("Head height"), 0, 0), gp_Pnt(length, 0, 0), headRadius});
}

/// The outline of a knob: lobes and hollows that share a tangent where they meet, so that their sweeps make
/// up for the turn from one to the next.
Outline starOutline(int lobes, double radius)
{
    const double lobe = 150 * Pi / 180;
    const double hollow = 2 * Pi / lobes - lobe;
    const double half = Pi / 2 / lobes;
    const double meeting = radius / (std::cos(half) + std::tan(lobe / 4) * std::sin(half));
    Outline outline;
    for (int i = 0; i < 2 * lobes; ++i) {
        const double angle = Pi / 2 + (2 * i - 1) * half;
        outline.push_back({meeting * std::cos(angle), meeting * std::sin(angle),
                           std::tan((i % 2 == 0 ? lobe : hollow) / 4)});
    }
    return outline;
}

} // namespace

void hexBolt(Solid& solid, const Dimensions& given)
{
    const double flats = given("Width across flats");
    const gp_Ax2 frame(gp_Pnt(), -gp::DX(), gp::DZ());
    const TopoDS_Shape head = hexagonHead(frame, flats, given("Head height"), false);
    // ISO 4014: lengths up to 125 mm.
    addBolt(solid, head, flats / std::sqrt(3.0), given, 2 * given("Thread diameter") + 6);
}

void socketScrew(Solid& solid, const Dimensions& given)
{
    const double height = given("Head height");
    const double radius = given("Head diameter") / 2;
    const double rounding = 0.1 * given("Thread diameter");
    const double depth = given("Socket depth");
    const gp_Ax2 frame(gp_Pnt(), -gp::DX(), gp::DZ());
    const TopoDS_Shape head =
        turned(frame, {{radius, 0}, {radius, height - rounding, QuarterTurn}, {radius - rounding, height}});
    const TopoDS_Shape socket = prism(raised(frame, height - depth), hexagon(given("Socket size")), depth);
    // ISO 4762.
    addBolt(solid, joined(head, socket, {raised(frame, height)}), radius, given,
            2 * given("Thread diameter") + 12);
}

void dowelPin(Solid& solid, const Dimensions& given)
{
    const double radius = given("Diameter") / 2;
    const double length = given("Length");
    // One end is chamfered, the other crowned with the pin's diameter as radius.
    const double crown = 2 * radius - std::sqrt(3.0) * radius;
    const Outline profile{
        {0.9 * radius, 0}, {radius, 0.3 * radius}, {radius, length - crown, std::tan(Pi / 24)}, {0, length}};
    solid.add(Material::Steel, turned(gp_Ax2(gp_Pnt(), gp::DX(), gp::DZ()), profile));
    solid.axes.push_back({gp_Pnt(), gp_Pnt(length, 0, 0), radius});
}

void hexNut(Solid& solid, const Dimensions& given)
{
    const double height = given("Height");
    const double flats = given("Width across flats");
    const TopoDS_Shape bore = threadedBore(solid, {}, given("Thread diameter"), given("Pitch"), height);
    solid.add(Material::Steel, joined(hexagonHead({}, flats, height, true), bore, {{}, raised({}, height)}));
    solid.axes.push_back({gp_Pnt(), gp_Pnt(0, 0, height), flats / std::sqrt(3.0)});
    solid.telling = Side::Top;
}

void washer(Solid& solid, const Dimensions& given)
{
    const double radius = given("Outer diameter") / 2;
    const double thickness = given("Thickness");
    solid.add(Material::Zinc, turned({}, {{radius, 0}, {radius, thickness}}, given("Inner diameter") / 2));
    solid.axes.push_back({gp_Pnt(), gp_Pnt(0, 0, thickness), radius});
    solid.telling = Side::Top;
}

void starKnob(Solid& solid, const Dimensions& given)
{
    const double radius = given("Head diameter") / 2;
    const double height = given("Head height");
    const double cap = 0.06 * height;
    const double hubHeight = 0.38 * height;
    const double hub = given("Hub diameter") / 2;
    const double stud = given("Length");
    const Outline star = starOutline(given.count("Lobes"), radius);
    const TopoDS_Shape grip = prism(raised({}, hubHeight), star, height - cap - hubHeight);
    const TopoDS_Shape neck = turned({}, {{0.9 * hub, 0}, {hub, hubHeight}});
    solid.add(Material::DarkPlastic, joined(grip, neck, {raised({}, hubHeight)}));
    solid.add(Material::ColouredPlastic, cylinder(raised({}, height - cap), 0.45 * radius, cap));
    const gp_Ax2 down(gp_Pnt(), -gp::DZ(), gp::DX());
    solid.add(Material::Steel,
              threadedShank(solid, down, given("Thread diameter"), given("Pitch"), stud, stud));
    solid.axes.push_back({gp_Pnt(0, 0, -stud), gp_Pnt(0, 0, height), radius});
}

} // namespace devcatalog
