#include "dev/catalog/drawings/families/Families.h"
#include "dev/catalog/drawings/families/Features.h"
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

/// Four holes in an end.
std::vector<TopoDS_Shape> mountingHoles(Solid& solid, double spacing, double radius, double from, double to)
{
    std::vector<TopoDS_Shape> holes;
    for (const gp_Pnt& mouth : squarePattern(spacing, from))
        holes.push_back(hole(solid, mouth, {to, mouth.Y(), mouth.Z()}, radius));
    return holes;
}

TopoDS_Shape cover(double size, double x, double length)
{
    return prism(acrossX(x), roundedRectangle(size, size, 0.1 * size), length);
}

/// Adds a cylinder's cover with mounting holes from its outer face in and with a port in the upper side.
void addCover(Solid& solid, const Dimensions& given, const TopoDS_Shape& block, double face, double inward)
{
    const double size = given("Cover size");
    std::vector<TopoDS_Shape> holes =
        mountingHoles(solid, given("Screw spacing"), given("Screw diameter") / 2, face, face + 0.5 * inward);
    const double x = face + 0.55 * inward;
    holes.push_back(hole(solid, {x, 0, size / 2}, {x, 0, 0.3 * size}, given("Port diameter") / 2));
    solid.add(Material::Aluminium, cut(block, holes));
}

/// Adds a sensor's nuts.
/// @return what to leave out of the barrel: sharing a surface with it would blur what hides what, so the nuts
/// go through.
std::vector<TopoDS_Shape> addNuts(Solid& solid, double flats, double height, double x)
{
    std::vector<TopoDS_Shape> gaps;
    for (const double at : {x, x + 2.2 * height}) {
        const gp_Ax2 frame(gp_Pnt(at, 0, 0), gp::DX(), gp::DZ());
        gaps.push_back(cylinder(frame, flats, height));
        solid.add(Material::Steel, hexagonHead(frame, flats, height, true));
    }
    return gaps;
}

/// Adds a sensor's cable, which bends down and ends behind the bend, in a sleeve.
void addCable(Solid& solid, double diameter, double relief)
{
    const double radius = diameter / 2;
    const gp_Ax2 frame(gp_Pnt(), -gp::DX(), gp::DY());
    const Outline sleeve{{0.8 * radius, 0}, {0.7 * radius, relief / 2}, {0.5 * radius, relief}};
    solid.add(Material::DarkPlastic, turned(frame, sleeve));
    const double bend = 1.5 * diameter;
    const double reach = bend * std::tan(Pi / 6);
    const gp_Pnt corner(-(relief + 0.6 * diameter) - reach, 0, 0);
    const double beyond = reach + 0.1 * diameter;
    const gp_Pnt last(corner.X() - beyond * std::cos(Pi / 3), 0, -beyond * std::sin(Pi / 3));
    const std::vector<gp_Pnt> way{{-relief, 0, 0}, corner, last};
    solid.add(Material::DarkPlastic, bentBar(way, bend, 0.18 * diameter));
}

} // namespace

void pneumaticCylinder(Solid& solid, const Dimensions& given)
{
    const double size = given("Cover size");
    const double length = given("Cover length");
    const double barrel = given("Body length") - 2 * length + given("Stroke");
    const double front = length + barrel;
    const double end = front + length;
    addCover(solid, given, cover(size, 0, length), 0, length);
    const TopoDS_Shape neck = cylinder(acrossX(end), 0.4 * size, 0.35 * length);
    addCover(solid, given, joined(cover(size, front, length), neck, {acrossX(end)}), end, -length);
    solid.add(Material::Aluminium, cylinder(acrossX(length), 0.56 * given("Bore"), barrel));
    for (const gp_Pnt& corner : squarePattern(given("Screw spacing"), length))
        solid.add(Material::Steel, cylinder(gp_Ax2(corner, gp::DX()), 0.4 * given("Screw diameter"), barrel));
    const double neckEnd = end + 0.35 * length;
    const double rodEnd = neckEnd + 0.6 * length;
    const double thread = given("Thread length");
    const TopoDS_Shape rod = cylinder(acrossX(neckEnd), given("Rod diameter") / 2, rodEnd - neckEnd);
    const TopoDS_Shape tip =
        threadedShank(solid, acrossX(rodEnd), given("Rod thread"), given("Rod thread pitch"), thread, thread);
    solid.add(Material::Steel, joined(rod, tip, {acrossX(rodEnd)}));
    solid.axes.push_back({gp_Pnt(), gp_Pnt(rodEnd + thread, 0, 0), size / 2});
}

void proximitySensor(Solid& solid, const Dimensions& given)
{
    const double diameter = given("Thread diameter");
    const double radius = diameter / 2;
    const double pitch = given("Pitch");
    const double barrel = given("Barrel length");
    const double flats = given("Nut width");
    const double face = 0.06 * barrel;
    const double relief = 0.3 * barrel;
    solid.threads.push_back(
        {false, acrossX(0.12 * barrel), radius, threadRootRadius(diameter, pitch), 0.88 * barrel, pitch});
    solid.add(Material::ColouredPlastic, cylinder(acrossX(barrel), 0.94 * radius, face));
    const std::vector<TopoDS_Shape> gaps = addNuts(solid, flats, given("Nut height"), 0.42 * barrel);
    solid.add(Material::Brass, cut(cylinder(acrossX(0), radius, barrel), gaps));
    addCable(solid, diameter, relief);
    solid.axes.push_back({gp_Pnt(-relief, 0, 0), gp_Pnt(barrel + face, 0, 0), flats / 2});
}

void stepperMotor(Solid& solid, const Dimensions& given)
{
    const double size = given("Frame size");
    const double length = given("Body length");
    const double flange = std::min(0.25 * length, 0.2 * size);
    const double shaft = given("Shaft diameter") / 2;
    const double shaftLength = given("Shaft length");
    const double pilot = given("Pilot diameter") / 2;
    const double pilotHeight = given("Pilot height");
    const std::vector<TopoDS_Shape> holes =
        mountingHoles(solid, given("Hole spacing"), given("Hole diameter") / 2, 0, -0.6 * flange);
    const TopoDS_Shape boss = cylinder(acrossX(0), pilot, pilotHeight);
    solid.add(Material::Aluminium, cut(joined(cover(size, -flange, flange), boss, {acrossX(0)}), holes));
    solid.add(Material::Aluminium, cover(size, -length, flange));
    // The stack of sheets between the covers has its corners cut off.
    const double half = 0.485 * size;
    const double corner = 0.34 * size;
    const Outline sheet{{half, -corner}, {half, corner},   {corner, half},   {-corner, half},
                        {-half, corner}, {-half, -corner}, {-corner, -half}, {corner, -half}};
    solid.add(Material::DarkPlastic, prism(acrossX(flange - length), sheet, length - 2 * flange));
    // The shaft is round near the motor and has a flat toward its end.
    const double free = shaftLength - pilotHeight;
    const TopoDS_Shape waste = prism(acrossX(pilotHeight + 0.3 * free),
                                     rectangle(-shaft, 0.8 * shaft, shaft, 2 * shaft), shaftLength);
    solid.add(Material::Steel, cut(cylinder(acrossX(pilotHeight), shaft, free), {waste}));
    const gp_Ax2 below(gp_Pnt(-length + 0.625 * flange, 0, -size / 2), -gp::DZ(), gp::DX());
    const Outline plug = rectangle(-0.375 * flange, -size / 6, 0.375 * flange, size / 6);
    solid.add(Material::LightPlastic, prism(below, plug, 0.12 * size));
    solid.axes.push_back({gp_Pnt(-length, 0, 0), gp_Pnt(shaftLength, 0, 0), pilot});
}

} // namespace devcatalog
