#include "dev/catalog/drawings/families/Fasteners.h"

#include "dev/catalog/drawings/families/Bores.h"
#include "dev/catalog/drawings/solids/Extrusion.h"
#include "dev/catalog/drawings/solids/HexagonPrism.h"
#include "dev/catalog/drawings/solids/Revolution.h"
#include "dev/catalog/drawings/solids/Thread.h"

#include <algorithm>
#include <cmath>

namespace devcatalog
{

namespace
{

/// A shank from a frame's origin along its z axis, threaded toward its chamfered end.
void addThreadedShank(Solid& solid, Material material, const Frame& frame, double diameter, double pitch,
                      double length, double threadLength)
{
    const double radius = diameter / 2;
    const double root = Thread::minorDiameter(diameter, pitch) / 2;
    const double chamfer = radius - root;
    solid.add<Revolution>(
        material, frame,
        polygon({{0, 0}, {radius, 0}, {radius, length - chamfer}, {root, length}, {0, length}}));
    const double threaded = std::min(threadLength, length - 2 * pitch) - chamfer;
    solid.add<Thread>(material, frame.raised(length - chamfer - threaded), Thread::Kind::External, diameter,
                      pitch, threaded);
}

/// The shank of a bolt or screw along x.
void addBoltShank(Solid& solid, const Dimensions& dimensions)
{
    const double diameter = dimensions("Thread diameter");
    const double length = dimensions("Length");
    const bool partial = dimensions.text("Thread") == "partial";
    addThreadedShank(solid, Material::Steel, Frame::at({}, xAxis, zAxis), diameter, dimensions("Pitch"),
                     length, partial ? 2 * diameter + 6 : length);
}

} // namespace

Solid hexBolt(const Dimensions& dimensions)
{
    Solid solid;
    const double height = dimensions("Head height");
    const double flats = dimensions("Width across flats");
    solid.add<HexagonPrism>(Material::Steel, Frame::at({}, -xAxis, zAxis), flats, height,
                            HexagonPrism::Chamfer::Top);
    addBoltShank(solid, dimensions);
    solid.axes.push_back({{-height, 0, 0}, {dimensions("Length"), 0, 0}, flats / 2});
    return solid;
}

Solid socketScrew(const Dimensions& dimensions)
{
    Solid solid;
    const double height = dimensions("Head height");
    const double radius = dimensions("Head diameter") / 2;
    const Profile socket = regularPolygon(6, dimensions("Socket size") / std::sqrt(3.0), 0);
    solid.add<Extrusion>(Material::Steel, Frame::at({}, -xAxis, zAxis), circle({}, radius), height,
                         std::vector<Extrusion::Hole>{{socket, 0.45 * height, height}});
    addBoltShank(solid, dimensions);
    solid.axes.push_back({{-height, 0, 0}, {dimensions("Length"), 0, 0}, radius});
    return solid;
}

Solid dowelPin(const Dimensions& dimensions)
{
    Solid solid;
    const double radius = dimensions("Diameter") / 2;
    const double length = dimensions("Length");
    const double chamfer = 0.3 * radius;
    // One end is chamfered, the other crowned with the pin's diameter as radius.
    const double crown = 2 * radius - std::sqrt(3.0) * radius;
    const Profile outline{{{{0, 0}, 0},
                           {{0.9 * radius, 0}, 0},
                           {{radius, chamfer}, 0},
                           {{radius, length - crown}, std::tan(pi / 24)},
                           {{0, length}, 0}},
                          true};
    solid.add<Revolution>(Material::Steel, Frame::at({}, xAxis, zAxis), outline);
    solid.axes.push_back({{}, {length, 0, 0}, radius});
    return solid;
}

Solid hexNut(const Dimensions& dimensions)
{
    Solid solid;
    const double diameter = dimensions("Thread diameter");
    const double pitch = dimensions("Pitch");
    const double height = dimensions("Height");
    const double flats = dimensions("Width across flats");
    const double bore = Thread::minorDiameter(diameter, pitch) / 2;
    const Frame frame;
    solid.add<HexagonPrism>(Material::Steel, frame, flats, height, HexagonPrism::Chamfer::BothEnds, bore);
    addBoreWall(solid, Material::Steel, {}, {0, 0, height}, bore);
    solid.add<Thread>(Material::Steel, frame, Thread::Kind::Internal, diameter, pitch, height);
    solid.axes.push_back({{}, {0, 0, height}, flats / std::sqrt(3.0)});
    solid.telling = Side::Top;
    return solid;
}

Solid washer(const Dimensions& dimensions)
{
    Solid solid;
    const double radius = dimensions("Outer diameter") / 2;
    const double thickness = dimensions("Thickness");
    const Profile hole = circle({}, dimensions("Inner diameter") / 2);
    solid.add<Extrusion>(Material::Zinc, Frame{}, circle({}, radius), thickness,
                         std::vector<Extrusion::Hole>{{hole, 0, thickness}});
    solid.axes.push_back({{}, {0, 0, thickness}, radius});
    solid.telling = Side::Top;
    return solid;
}

Solid starKnob(const Dimensions& dimensions)
{
    Solid solid;
    const int lobes = dimensions.count("Lobes");
    const double radius = dimensions("Head diameter") / 2;
    const double headHeight = dimensions("Head height");
    const double hubHeight = 0.4 * headHeight;
    const double stud = dimensions("Length");
    // Lobes and hollows share a tangent where they meet: their sweeps make up for the turn from one to the
    // next.
    const double lobe = 150 * pi / 180;
    const double hollow = 2 * pi / lobes - lobe;
    const double half = pi / 2 / lobes;
    const double meeting = radius / (std::cos(half) + std::tan(lobe / 4) * std::sin(half));
    Profile outline;
    outline.closed = true;
    for (int i = 0; i < 2 * lobes; ++i) {
        const double angle = pi / 2 + (2 * i - 1) * half;
        outline.vertices.push_back({{meeting * std::cos(angle), meeting * std::sin(angle)},
                                    std::tan((i % 2 == 0 ? lobe : hollow) / 4)});
    }
    const Frame seat = Frame::at({0, 0, hubHeight}, zAxis, xAxis);
    solid.add<Extrusion>(Material::DarkPlastic, seat, outline, headHeight - hubHeight);
    const double hub = dimensions("Hub diameter") / 2;
    solid.add<Revolution>(Material::DarkPlastic, Frame{},
                          polygon({{0, 0}, {0.9 * hub, 0}, {hub, hubHeight}, {0, hubHeight}}));
    solid.add<Extrusion>(Material::ColouredPlastic, seat.raised(headHeight - hubHeight),
                         circle({}, 0.45 * radius), 0.06 * headHeight);
    addThreadedShank(solid, Material::Steel, Frame::at({}, -zAxis, xAxis), dimensions("Thread diameter"),
                     dimensions("Pitch"), stud, stud);
    solid.axes.push_back({{0, 0, -stud}, {0, 0, 1.06 * headHeight}, radius});
    return solid;
}

} // namespace devcatalog
