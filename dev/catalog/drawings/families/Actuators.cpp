#include "dev/catalog/drawings/families/Actuators.h"

#include "dev/catalog/drawings/families/Bores.h"
#include "dev/catalog/drawings/solids/Extrusion.h"
#include "dev/catalog/drawings/solids/HexagonPrism.h"
#include "dev/catalog/drawings/solids/Revolution.h"
#include "dev/catalog/drawings/solids/Sweep.h"
#include "dev/catalog/drawings/solids/Thread.h"

#include <algorithm>
#include <cmath>

namespace devcatalog
{

namespace
{

/// A frame across the x axis, with y to its right and z up.
Frame acrossX(double x)
{
    return Frame::at({x, 0, 0}, xAxis, yAxis);
}

Profile roundedSquare(double size, double radius)
{
    return roundedRectangle({-size / 2, -size / 2}, {size / 2, size / 2}, radius);
}

/// The four corners of a square around the axis.
std::vector<dwg::Point2> squarePattern(double spacing)
{
    const double half = spacing / 2;
    return {{-half, -half}, {half, -half}, {half, half}, {-half, half}};
}

/// Four blind holes in an end, and their centre lines.
std::vector<Extrusion::Hole> mountingHoles(Solid& solid, const Frame& frame, double spacing, double radius,
                                           double from, double to)
{
    std::vector<Extrusion::Hole> holes;
    for (const dwg::Point2& corner : squarePattern(spacing)) {
        holes.push_back({circle(corner, radius), from, to});
        solid.axes.push_back(
            {frame.point(corner.x, corner.y, from), frame.point(corner.x, corner.y, to), radius});
    }
    return holes;
}

} // namespace

Solid pneumaticCylinder(const Dimensions& dimensions)
{
    Solid solid;
    const double size = dimensions("Cover size");
    const double cover = dimensions("Cover length");
    const double stroke = dimensions("Stroke");
    const double barrel = dimensions("Body length") - 2 * cover + stroke;
    const double front = cover + barrel;
    const double end = front + cover;
    const double spacing = dimensions("Screw spacing");
    const double screw = dimensions("Screw diameter") / 2;
    const double rod = dimensions("Rod diameter") / 2;
    const Profile outline = roundedSquare(size, 0.1 * size);
    const auto rearHoles = mountingHoles(solid, acrossX(0), spacing, screw, 0, 0.5 * cover);
    const auto frontHoles = mountingHoles(solid, acrossX(front), spacing, screw, 0.5 * cover, cover);
    auto& rearCover = solid.add<Extrusion>(Material::Aluminium, acrossX(0), outline, cover, rearHoles);
    auto& frontCover = solid.add<Extrusion>(Material::Aluminium, acrossX(front), outline, cover, frontHoles);
    for (auto* each : {&rearCover, &frontCover}) {
        const double x = each == &rearCover ? 0.55 * cover : front + 0.45 * cover;
        drillBlind(solid, *each, Material::Aluminium, {x, 0, size / 2}, {x, 0, 0.3 * size},
                   dimensions("Port diameter") / 2);
    }
    solid.add<Extrusion>(Material::Aluminium, acrossX(cover), circle({}, 0.56 * dimensions("Bore")), barrel);
    for (const dwg::Point2& corner : squarePattern(spacing))
        solid.add<Extrusion>(Material::Steel, acrossX(cover), circle(corner, 0.8 * screw), barrel);
    const double neck = 0.4 * size;
    const double neckLength = 0.35 * cover;
    const double rodLength = neckLength + 0.6 * cover;
    const double thread = dimensions("Thread length");
    const double threadRadius = dimensions("Rod thread") / 2;
    const double pitch = dimensions("Rod thread pitch");
    const double chamfer = 0.54 * pitch;
    solid.add<Revolution>(Material::Aluminium, acrossX(end),
                          openOutline({{neck, 0}, {neck, neckLength}, {rod, neckLength}}));
    solid.add<Revolution>(Material::Steel, acrossX(end),
                          openOutline({{rod, neckLength},
                                       {rod, rodLength},
                                       {threadRadius, rodLength},
                                       {threadRadius, rodLength + thread - chamfer},
                                       {threadRadius - chamfer, rodLength + thread},
                                       {0, rodLength + thread}}));
    solid.add<Thread>(Material::Steel, acrossX(end + rodLength), Thread::Kind::External, 2 * threadRadius,
                      pitch, thread - chamfer);
    solid.axes.push_back({{}, {end + rodLength + thread, 0, 0}, size / 2});
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
    const Frame frame = acrossX(0);
    solid.add<Extrusion>(Material::Brass, frame, circle({}, radius), barrel);
    solid.add<Thread>(Material::Brass, acrossX(0.12 * barrel), Thread::Kind::External, diameter, pitch,
                      0.88 * barrel);
    solid.add<Revolution>(Material::ColouredPlastic, acrossX(barrel),
                          openOutline({{0.94 * radius, 0}, {0.94 * radius, face}, {0, face}}));
    for (const double x : {0.42 * barrel, 0.42 * barrel + 2.2 * nut}) {
        solid.add<HexagonPrism>(Material::Steel, Frame::at({x, 0, 0}, xAxis, zAxis), flats, nut,
                                HexagonPrism::Chamfer::BothEnds, radius);
        addBoreWall(solid, Material::Steel, {x, 0, 0}, {x + nut, 0, 0}, radius);
    }
    const double relief = 0.3 * barrel;
    const double cable = 0.18 * diameter;
    solid.add<Revolution>(
        Material::DarkPlastic, Frame::at({}, -xAxis, yAxis),
        openOutline(
            {{0.8 * radius, 0}, {0.7 * radius, relief / 2}, {0.5 * radius, relief}, {cable, relief}}));
    const double bend = 1.5 * diameter;
    const Vector3 bendCentre{-relief - 0.6 * diameter, 0, -bend};
    solid.add<Sweep>(Material::DarkPlastic,
                     std::vector<Curve>{LineCurve{{-relief, 0, 0}, {bendCentre.x, 0, 0}},
                                        ArcCurve{bendCentre, bend * zAxis, -bend * xAxis, 0, pi / 3}},
                     cable);
    solid.axes.push_back({{-relief, 0, 0}, {barrel + face, 0, 0}, flats / 2});
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
    const Profile cap = roundedSquare(size, 0.1 * size);
    const auto holes = mountingHoles(solid, acrossX(-flange), dimensions("Hole spacing"),
                                     dimensions("Hole diameter") / 2, 0.4 * flange, flange);
    solid.add<Extrusion>(Material::Aluminium, acrossX(-flange), cap, flange, holes);
    solid.add<Extrusion>(Material::Aluminium, acrossX(-length), cap, flange);
    // The stack of sheets between the covers has its corners cut off.
    const double half = 0.485 * size;
    const double cut = 0.34 * size;
    solid.add<Extrusion>(Material::DarkPlastic, acrossX(flange - length),
                         polygon({{half, -cut},
                                  {half, cut},
                                  {cut, half},
                                  {-cut, half},
                                  {-half, cut},
                                  {-half, -cut},
                                  {-cut, -half},
                                  {cut, -half}}),
                         length - 2 * flange);
    solid.add<Extrusion>(Material::Aluminium, acrossX(0), circle({}, pilot), pilotHeight);
    // The shaft is round near the motor and has a flat toward its end.
    const double round = pilotHeight + 0.3 * (shaftLength - pilotHeight);
    const double flat = 0.8 * shaft;
    const double reach = std::acos(flat / shaft);
    const Profile withFlat{{{{-shaft * std::sin(reach), flat}, std::tan((2 * pi - 2 * reach) / 4)},
                            {{shaft * std::sin(reach), flat}, 0}},
                           true};
    solid.add<Extrusion>(Material::Steel, acrossX(pilotHeight), circle({}, shaft), round - pilotHeight);
    solid.add<Extrusion>(Material::Steel, acrossX(round), withFlat, shaftLength - round);
    solid.add<Extrusion>(Material::LightPlastic,
                         Frame::at({-length + flange / 2, 0, -size / 2}, -zAxis, xAxis),
                         rectangle({-flange / 4, -size / 6}, {flange / 2, size / 6}), 0.12 * size);
    solid.axes.push_back({{-length, 0, 0}, {shaftLength, 0, 0}, pilot});
    return solid;
}

} // namespace devcatalog
