#include "dev/catalog/drawings/families/DriveParts.h"

#include "dev/catalog/drawings/families/Bores.h"
#include "dev/catalog/drawings/solids/Ball.h"
#include "dev/catalog/drawings/solids/Coil.h"
#include "dev/catalog/drawings/solids/Extrusion.h"
#include "dev/catalog/drawings/solids/Revolution.h"
#include "dev/catalog/drawings/solids/ToothedWheel.h"

#include <algorithm>
#include <cmath>

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
void addRings(Solid& solid, const Frame& frame, const BearingSize& size)
{
    const double width = size.width;
    const double chamfer = std::min(0.06 * width, 0.12 * size.thickness());
    const double bore = size.bore / 2;
    const double outer = size.outer / 2;
    solid.add<Revolution>(Material::Steel, frame,
                          polygon({{bore + chamfer, 0},
                                   {size.innerShoulder(), 0},
                                   {size.innerShoulder(), width},
                                   {bore + chamfer, width},
                                   {bore, width - chamfer},
                                   {bore, chamfer}}));
    solid.add<Revolution>(Material::Steel, frame,
                          polygon({{size.outerShoulder(), 0},
                                   {outer - chamfer, 0},
                                   {outer, chamfer},
                                   {outer, width - chamfer},
                                   {outer - chamfer, width},
                                   {size.outerShoulder(), width}}));
}

void addBalls(Solid& solid, const Frame& frame, const BearingSize& size)
{
    const double pitchRadius = (size.bore + size.outer) / 4;
    const double radius = (size.outerShoulder() - size.innerShoulder()) / 2;
    const int count = static_cast<int>(2 * pi * pitchRadius / (2.6 * radius));
    for (int i = 0; i < count; ++i)
        solid.addWithoutHiddenEdges<Ball>(
            Material::Zinc, frame.polar(pitchRadius, pi / 2 + 2 * pi * i / count, size.width / 2), radius);
    solid.pitchCircles.push_back({frame, pitchRadius, 0});
}

/// Sealing discs, a little below the faces.
void addShields(Solid& solid, const Frame& frame, const BearingSize& size, Material material)
{
    const double depth = 0.06 * size.width;
    const Profile outline = circle({}, size.outerShoulder());
    const Profile hole = circle({}, size.innerShoulder());
    for (const double z : {depth, size.width - 2 * depth})
        solid.add<Extrusion>(material, frame.raised(z), outline, depth,
                             std::vector<Extrusion::Hole>{{hole, 0, depth}});
}

} // namespace

Solid ballBearing(const Dimensions& dimensions)
{
    Solid solid;
    const BearingSize size{dimensions("Bore"), dimensions("Outer diameter"), dimensions("Width")};
    const Frame frame = Frame::at({}, yAxis, xAxis);
    addRings(solid, frame, size);
    const std::string sealing = dimensions.text("Sealing");
    if (sealing == "open")
        addBalls(solid, frame, size);
    else
        addShields(solid, frame, size, sealing == "2RS" ? Material::DarkPlastic : Material::Zinc);
    solid.axes.push_back({{}, {0, size.width, 0}, size.outer / 2});
    return solid;
}

Solid pillowBlock(const Dimensions& dimensions)
{
    Solid solid;
    const double length = dimensions("Length");
    const double centre = dimensions("Centre height");
    const double depth = dimensions("Depth");
    const double foot = 0.3 * centre;
    const double radius = dimensions("Housing radius");
    const double insert = 0.72 * radius;
    const double reach = dimensions("Bolt spacing") / 2;
    const Frame frame = Frame::at({0, depth / 2, 0}, -yAxis, xAxis);
    const Profile outline{{{{-length / 2, 0}, 0},
                           {{length / 2, 0}, 0},
                           {{length / 2, foot}, 0},
                           {{radius, foot}, 0},
                           {{radius, centre}, 1},
                           {{-radius, centre}, 0},
                           {{-radius, foot}, 0},
                           {{-length / 2, foot}, 0}},
                          true};
    auto& housing =
        solid.add<Extrusion>(Material::DarkPlastic, frame, outline, depth,
                             std::vector<Extrusion::Hole>{{circle({0, centre}, insert), 0, depth}});
    for (const double x : {-reach, reach})
        drill(solid, housing, Material::DarkPlastic, {x, 0, 0}, {x, 0, foot}, dimensions("Bolt hole") / 2);
    // The insert bearing stands out at the front, where its inner ring is clamped to the shaft.
    const BearingSize size{dimensions("Bore"), 2 * insert, 0.8 * depth};
    const Frame bearing = Frame::at({0, 0.4 * depth, centre}, -yAxis, xAxis);
    const double collar = size.bore / 2 + 0.35 * size.thickness();
    solid.add<Revolution>(
        Material::Steel, bearing,
        polygon({{size.bore / 2, 0}, {collar, 0}, {collar, 1.15 * depth}, {size.bore / 2, 1.15 * depth}}));
    solid.add<Revolution>(Material::Steel, bearing,
                          polygon({{collar, 0}, {insert, 0}, {insert, size.width}, {collar, size.width}}));
    solid.axes.push_back({{0, depth / 2, centre}, {0, -0.75 * depth, centre}, radius});
    return solid;
}

Solid spurGear(const Dimensions& dimensions)
{
    Solid solid;
    const double module = dimensions("Module");
    const int teeth = dimensions.count("Teeth");
    const double width = dimensions("Face width");
    const double bore = dimensions("Bore");
    const double hub = dimensions("Hub diameter") / 2;
    const double hubLength = 0.6 * width;
    const Frame frame = Frame::at({}, -yAxis, xAxis);
    solid.add<ToothedWheel>(Material::Steel, frame, module, teeth, width,
                            Extrusion::Hole{keyedBore(bore), 0, width, true, false});
    solid.add<Extrusion>(Material::Steel, frame.raised(width), circle({}, hub), hubLength,
                         std::vector<Extrusion::Hole>{{keyedBore(bore), 0, hubLength, false, true}});
    solid.axes.push_back({{}, {0, -width - hubLength, 0}, module * (teeth + 2) / 2});
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
    const double beltWidth = dimensions("Belt width");
    const double bore = dimensions("Bore") / 2;
    const double outer = pitchRadius + rise;
    const double bottom = outer - depth;
    const double flank = std::tan(18 * pi / 180);
    const double halfTop = beltWidth / 2 + rise * flank;
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
    const Frame frame = Frame::at({}, -yAxis, xAxis);
    solid.add<Revolution>(Material::Steel, frame, polygon(outline));
    solid.axes.push_back({{}, {0, -width, 0}, outer});
    solid.pitchCircles.push_back({frame, pitchRadius, width});
    return solid;
}

Solid compressionSpring(const Dimensions& dimensions)
{
    Solid solid;
    const double wire = dimensions("Wire diameter");
    const double mean = dimensions("Outer diameter") - wire;
    const double height = dimensions("Free length");
    // Turns that are out of sight would make the ones in sight unreadable.
    solid.addWithoutHiddenEdges<Coil>(Material::Steel, Frame{}, mean, wire, dimensions("Turns"), height);
    solid.axes.push_back({{}, {0, 0, height}, (mean + wire) / 2});
    return solid;
}

} // namespace devcatalog
