#include "dev/catalog/drawings/families/Fasteners.h"

#include "dev/catalog/drawings/families/Threads.h"
#include "dev/catalog/drawings/solids/Shapes.h"

#include <cmath>

namespace devcatalog
{

namespace
{

/// A head toward -x and a shank toward x, as one.
/// @param partialThread length of the thread where the shank is not threaded whole.
Solid boltWith(const TopoDS_Shape& head, double height, double headRadius, const Dimensions& dimensions,
               double partialThread)
{
    Solid solid;
    const double length = dimensions("Length");
    const bool partial = dimensions.text("Thread") == "partial";
    const TopoDS_Shape shank =
        threadedShank(solid, gp_Ax2(gp_Pnt(), gp::DX(), gp::DZ()), dimensions("Thread diameter"),
                      dimensions("Pitch"), length, partial ? partialThread : length);
    solid.bodies.push_back({Material::Steel, fused({head, shank})});
    solid.axes.push_back({gp_Pnt(-height, 0, 0), gp_Pnt(length, 0, 0), headRadius});
    return solid;
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
        outline.push_back({{meeting * std::cos(angle), meeting * std::sin(angle)},
                           std::tan((i % 2 == 0 ? lobe : hollow) / 4)});
    }
    return outline;
}

} // namespace

Solid hexBolt(const Dimensions& dimensions)
{
    const double height = dimensions("Head height");
    const double flats = dimensions("Width across flats");
    const TopoDS_Shape head = hexagonHead(gp_Ax2(gp_Pnt(), -gp::DX(), gp::DZ()), flats, height, false);
    // ISO 4014: lengths up to 125 mm.
    return boltWith(head, height, flats / std::sqrt(3.0), dimensions, 2 * dimensions("Thread diameter") + 6);
}

Solid socketScrew(const Dimensions& dimensions)
{
    const double height = dimensions("Head height");
    const double radius = dimensions("Head diameter") / 2;
    const double rounding = 0.1 * dimensions("Thread diameter");
    const gp_Ax2 frame(gp_Pnt(), -gp::DX(), gp::DZ());
    const TopoDS_Shape head = revolved(frame, {{{0, 0}, 0},
                                               {{radius, 0}, 0},
                                               {{radius, height - rounding}, QuarterTurn},
                                               {{radius - rounding, height}, 0},
                                               {{0, height}, 0}});
    const double depth = dimensions("Socket depth");
    const TopoDS_Shape socket =
        prism(raised(frame, height - depth), hexagon(dimensions("Socket size")), 2 * depth);
    // ISO 4762.
    return boltWith(cut(head, {socket}), height, radius, dimensions, 2 * dimensions("Thread diameter") + 12);
}

Solid dowelPin(const Dimensions& dimensions)
{
    Solid solid;
    const double radius = dimensions("Diameter") / 2;
    const double length = dimensions("Length");
    // One end is chamfered, the other crowned with the pin's diameter as radius.
    const double crown = 2 * radius - std::sqrt(3.0) * radius;
    const Outline outline{{{0, 0}, 0},
                          {{0.9 * radius, 0}, 0},
                          {{radius, 0.3 * radius}, 0},
                          {{radius, length - crown}, std::tan(Pi / 24)},
                          {{0, length}, 0}};
    solid.bodies.push_back({Material::Steel, revolved(gp_Ax2(gp_Pnt(), gp::DX(), gp::DZ()), outline)});
    solid.axes.push_back({gp_Pnt(), gp_Pnt(length, 0, 0), radius});
    return solid;
}

Solid hexNut(const Dimensions& dimensions)
{
    Solid solid;
    const double height = dimensions("Height");
    const double flats = dimensions("Width across flats");
    const TopoDS_Shape bore =
        threadedBore(solid, gp_Ax2(), dimensions("Thread diameter"), dimensions("Pitch"), height);
    solid.bodies.push_back({Material::Steel, cut(hexagonHead(gp_Ax2(), flats, height, true), {bore})});
    solid.axes.push_back({gp_Pnt(), gp_Pnt(0, 0, height), flats / std::sqrt(3.0)});
    solid.telling = Side::Top;
    return solid;
}

Solid washer(const Dimensions& dimensions)
{
    Solid solid;
    const double bore = dimensions("Inner diameter") / 2;
    const double radius = dimensions("Outer diameter") / 2;
    const double thickness = dimensions("Thickness");
    const Outline section = polygon({{bore, 0}, {radius, 0}, {radius, thickness}, {bore, thickness}});
    solid.bodies.push_back({Material::Zinc, revolved(gp_Ax2(), section)});
    solid.axes.push_back({gp_Pnt(), gp_Pnt(0, 0, thickness), radius});
    solid.telling = Side::Top;
    return solid;
}

Solid starKnob(const Dimensions& dimensions)
{
    Solid solid;
    const double radius = dimensions("Head diameter") / 2;
    const double height = dimensions("Head height");
    const double cap = 0.06 * height;
    const double hubHeight = 0.38 * height;
    const double hub = dimensions("Hub diameter") / 2;
    const double stud = dimensions("Length");
    const gp_Ax2 seat = raised(gp_Ax2(), hubHeight);
    const TopoDS_Shape grip =
        prism(seat, starOutline(dimensions.count("Lobes"), radius), height - cap - hubHeight);
    const TopoDS_Shape neck =
        revolved(gp_Ax2(), polygon({{0, 0}, {0.9 * hub, 0}, {hub, hubHeight}, {0, hubHeight}}));
    solid.bodies.push_back({Material::DarkPlastic, fused({grip, neck})});
    solid.bodies.push_back(
        {Material::ColouredPlastic, cylinder(raised(gp_Ax2(), height - cap), 0.45 * radius, cap)});
    const gp_Ax2 down(gp_Pnt(), -gp::DZ(), gp::DX());
    solid.bodies.push_back({Material::Steel, threadedShank(solid, down, dimensions("Thread diameter"),
                                                           dimensions("Pitch"), stud, stud)});
    solid.axes.push_back({gp_Pnt(0, 0, -stud), gp_Pnt(0, 0, height), radius});
    return solid;
}

} // namespace devcatalog
