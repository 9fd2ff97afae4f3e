#include "dev/catalog/drawings/families/Actuators.h"

#include "dev/catalog/drawings/families/Threads.h"
#include "dev/catalog/drawings/solids/Shapes.h"

#include <algorithm>
#include <cmath>

namespace devcatalog
{

namespace
{

/// The four corners of a square around the x axis.
std::vector<gp_Pnt> squarePattern(double spacing, double x)
{
    const double half = spacing / 2;
    return {{x, -half, -half}, {x, half, -half}, {x, half, half}, {x, -half, half}};
}

/// Four holes in an end, with their centre lines.
std::vector<TopoDS_Shape> mountingHoles(Solid& solid, double spacing, double radius, double from, double to)
{
    std::vector<TopoDS_Shape> holes;
    for (const gp_Pnt& mouth : squarePattern(spacing, from)) {
        const gp_Pnt end(to, mouth.Y(), mouth.Z());
        holes.push_back(cylinder(mouth, end, radius));
        solid.axes.push_back({mouth, end, radius});
    }
    return holes;
}

TopoDS_Shape cover(double size, double x, double length)
{
    return prism(acrossX(x), roundedRectangle(size, size, 0.1 * size), length);
}

/// A round port in the upper side.
TopoDS_Shape port(Solid& solid, double x, double size, double radius)
{
    const gp_Pnt mouth(x, 0, size / 2);
    const gp_Pnt bottom(x, 0, 0.3 * size);
    solid.axes.push_back({mouth, bottom, radius});
    return cylinder(mouth, bottom, radius);
}

/// The covers at both ends of a cylinder, each with its mounting holes and port.
void addCovers(Solid& solid, const Dimensions& dimensions, double front)
{
    const double size = dimensions("Cover size");
    const double length = dimensions("Cover length");
    const double spacing = dimensions("Screw spacing");
    const double screw = dimensions("Screw diameter") / 2;
    const double radius = dimensions("Port diameter") / 2;
    std::vector<TopoDS_Shape> holes = mountingHoles(solid, spacing, screw, 0, 0.5 * length);
    holes.push_back(port(solid, 0.55 * length, size, radius));
    solid.bodies.push_back({Material::Aluminium, cut(cover(size, 0, length), holes)});
    holes = mountingHoles(solid, spacing, screw, front + length, front + 0.5 * length);
    holes.push_back(port(solid, front + 0.45 * length, size, radius));
    const TopoDS_Shape neck = cylinder(acrossX(front), 0.4 * size, 1.35 * length);
    solid.bodies.push_back({Material::Aluminium, cut(fused({cover(size, front, length), neck}), holes)});
}

} // namespace

Solid pneumaticCylinder(const Dimensions& dimensions)
{
    Solid solid;
    const double coverLength = dimensions("Cover length");
    const double barrel = dimensions("Body length") - 2 * coverLength + dimensions("Stroke");
    const double end = 2 * coverLength + barrel;
    addCovers(solid, dimensions, coverLength + barrel);
    solid.bodies.push_back(
        {Material::Aluminium, cylinder(acrossX(coverLength), 0.56 * dimensions("Bore"), barrel)});
    for (const gp_Pnt& corner : squarePattern(dimensions("Screw spacing"), coverLength))
        solid.bodies.push_back({Material::Steel, cylinder(gp_Ax2(corner, gp::DX()),
                                                          0.4 * dimensions("Screw diameter"), barrel)});
    const double neckEnd = end + 0.35 * coverLength;
    const double rodEnd = neckEnd + 0.6 * coverLength;
    const double thread = dimensions("Thread length");
    const TopoDS_Shape rod = cylinder(acrossX(neckEnd), dimensions("Rod diameter") / 2, rodEnd - neckEnd);
    const TopoDS_Shape stud = threadedShank(solid, acrossX(rodEnd), dimensions("Rod thread"),
                                            dimensions("Rod thread pitch"), thread, thread);
    solid.bodies.push_back({Material::Steel, fused({rod, stud})});
    solid.axes.push_back({gp_Pnt(), gp_Pnt(rodEnd + thread, 0, 0), dimensions("Cover size") / 2});
    return solid;
}

Solid proximitySensor(const Dimensions& dimensions)
{
    Solid solid;
    const double diameter = dimensions("Thread diameter");
    const double radius = diameter / 2;
    const double pitch = dimensions("Pitch");
    const double barrel = dimensions("Barrel length");
    const double flats = dimensions("Nut width");
    const double nut = dimensions("Nut height");
    const double face = 0.06 * barrel;
    solid.threads.push_back({Thread::Kind::External, acrossX(0.12 * barrel), radius,
                             threadRootRadius(diameter, pitch), 0.88 * barrel, pitch});
    solid.bodies.push_back({Material::ColouredPlastic, cylinder(acrossX(barrel), 0.94 * radius, face)});
    // Nut and barrel do not share a surface, which would blur what hides what: the nut goes through the
    // barrel.
    std::vector<TopoDS_Shape> gaps;
    for (const double x : {0.42 * barrel, 0.42 * barrel + 2.2 * nut}) {
        const gp_Ax2 frame(gp_Pnt(x, 0, 0), gp::DX(), gp::DZ());
        gaps.push_back(cylinder(frame, flats, nut));
        solid.bodies.push_back({Material::Steel, hexagonHead(frame, flats, nut, true)});
    }
    solid.bodies.push_back({Material::Brass, cut(cylinder(acrossX(0), radius, barrel), gaps)});
    const double relief = 0.3 * barrel;
    const double cable = 0.18 * diameter;
    const TopoDS_Shape sleeve = revolved(
        gp_Ax2(gp_Pnt(), -gp::DX(), gp::DY()),
        polygon(
            {{0, 0}, {0.8 * radius, 0}, {0.7 * radius, relief / 2}, {0.5 * radius, relief}, {0, relief}}));
    const double straight = relief + 0.6 * diameter;
    const double bend = 1.5 * diameter;
    const gp_Pnt corner(-straight - bend * std::tan(Pi / 6), 0, 0);
    // The bend ends where the cable does.
    const double beyond = bend * std::tan(Pi / 6) + 0.1 * diameter;
    const gp_Pnt last(corner.X() - beyond * std::cos(Pi / 3), 0, -beyond * std::sin(Pi / 3));
    solid.bodies.push_back({Material::DarkPlastic, sleeve});
    solid.bodies.push_back(
        {Material::DarkPlastic, bentBar({gp_Pnt(-relief, 0, 0), corner, last}, bend, cable)});
    solid.axes.push_back({gp_Pnt(-relief, 0, 0), gp_Pnt(barrel + face, 0, 0), flats / 2});
    return solid;
}

Solid stepperMotor(const Dimensions& dimensions)
{
    Solid solid;
    const double size = dimensions("Frame size");
    const double length = dimensions("Body length");
    const double flange = std::min(0.25 * length, 0.2 * size);
    const double shaft = dimensions("Shaft diameter") / 2;
    const double shaftLength = dimensions("Shaft length");
    const double pilot = dimensions("Pilot diameter") / 2;
    const double pilotHeight = dimensions("Pilot height");
    const std::vector<TopoDS_Shape> holes =
        mountingHoles(solid, dimensions("Hole spacing"), dimensions("Hole diameter") / 2, 0, -0.6 * flange);
    const TopoDS_Shape boss = cylinder(acrossX(0), pilot, pilotHeight);
    solid.bodies.push_back({Material::Aluminium, cut(fused({cover(size, -flange, flange), boss}), holes)});
    solid.bodies.push_back({Material::Aluminium, cover(size, -length, flange)});
    // The stack of sheets between the covers has its corners cut off.
    const double half = 0.485 * size;
    const double corner = 0.34 * size;
    const Outline sheet = polygon({{half, -corner},
                                   {half, corner},
                                   {corner, half},
                                   {-corner, half},
                                   {-half, corner},
                                   {-half, -corner},
                                   {-corner, -half},
                                   {corner, -half}});
    solid.bodies.push_back(
        {Material::DarkPlastic, prism(acrossX(flange - length), sheet, length - 2 * flange)});
    // The shaft is round near the motor and has a flat toward its end.
    const double round = pilotHeight + 0.3 * (shaftLength - pilotHeight);
    const Outline waste =
        polygon({{-shaft, 0.8 * shaft}, {shaft, 0.8 * shaft}, {shaft, 2 * shaft}, {-shaft, 2 * shaft}});
    solid.bodies.push_back(
        {Material::Steel, cut(cylinder(acrossX(pilotHeight), shaft, shaftLength - pilotHeight),
                              {prism(acrossX(round), waste, shaftLength)})});
    const gp_Ax2 below(gp_Pnt(-length + 0.625 * flange, 0, -size / 2), -gp::DZ(), gp::DX());
    solid.bodies.push_back({Material::LightPlastic, prism(below,
                                                          polygon({{-0.375 * flange, -size / 6},
                                                                   {0.375 * flange, -size / 6},
                                                                   {0.375 * flange, size / 6},
                                                                   {-0.375 * flange, size / 6}}),
                                                          0.12 * size)});
    solid.axes.push_back({gp_Pnt(-length, 0, 0), gp_Pnt(shaftLength, 0, 0), pilot});
    return solid;
}

} // namespace devcatalog
