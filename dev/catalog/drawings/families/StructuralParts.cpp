#include "dev/catalog/drawings/families/StructuralParts.h"

#include "dev/catalog/drawings/families/Bores.h"
#include "dev/catalog/drawings/solids/Extrusion.h"
#include "dev/catalog/drawings/solids/Revolution.h"
#include "dev/catalog/drawings/solids/Sweep.h"

#include <algorithm>
#include <cmath>

namespace devcatalog
{

namespace
{

const double quarterTurn = std::tan(pi / 8);

} // namespace

Solid angleBracket(const Dimensions& dimensions)
{
    Solid solid;
    const double leg = dimensions("Leg length");
    const double upright = dimensions("Height");
    const double width = dimensions("Width");
    const double thickness = dimensions("Thickness");
    const double outerRadius = 2 * thickness;
    const double radius = dimensions("Hole diameter") / 2;
    const Profile outline{{{{outerRadius, 0}, 0},
                           {{leg, 0}, 0},
                           {{leg, thickness}, 0},
                           {{outerRadius, thickness}, -quarterTurn},
                           {{thickness, outerRadius}, 0},
                           {{thickness, upright}, 0},
                           {{0, upright}, 0},
                           {{0, outerRadius}, quarterTurn}},
                          true};
    auto& body =
        solid.add<Extrusion>(Material::Zinc, Frame::at({0, width / 2, 0}, -yAxis, xAxis), outline, width);
    const double alongLeg = (leg + outerRadius) / 2;
    const double alongUpright = (upright + outerRadius) / 2;
    const int holes = dimensions.count("Holes per leg");
    for (int i = 0; i < holes; ++i) {
        const double y = width * ((i + 0.5) / holes - 0.5);
        drill(solid, body, Material::Zinc, {alongLeg, y, 0}, {alongLeg, y, thickness}, radius);
        drill(solid, body, Material::Zinc, {0, y, alongUpright}, {thickness, y, alongUpright}, radius);
    }
    return solid;
}

Solid aluminiumProfile(const Dimensions& dimensions)
{
    Solid solid;
    const double half = dimensions("Size") / 2;
    const double slot = dimensions("Slot width") / 2;
    const double lip = dimensions("Lip thickness");
    const double depth = dimensions("Slot depth");
    const double chamber = dimensions("Slot inner width") / 2;
    const double bottom = 0.45 * chamber;
    const double knee = lip + 0.45 * (depth - lip);
    const double rounding = 0.075 * half;
    const double length = dimensions("Length");
    // The right side from bottom to top; the others are the same, turned.
    const Profile side{{{{half, -half + rounding}, 0},
                        {{half, -slot}, 0},
                        {{half - lip, -slot}, 0},
                        {{half - lip, -chamber}, 0},
                        {{half - knee, -chamber}, 0},
                        {{half - depth, -bottom}, 0},
                        {{half - depth, bottom}, 0},
                        {{half - knee, chamber}, 0},
                        {{half - lip, chamber}, 0},
                        {{half - lip, slot}, 0},
                        {{half, slot}, 0},
                        {{half, half - rounding}, quarterTurn}},
                       false};
    Profile outline;
    outline.closed = true;
    for (int turn = 0; turn < 4; ++turn)
        for (dwg::PolylineVertex vertex : side.vertices) {
            for (int i = 0; i < turn; ++i)
                vertex.point = {-vertex.point.y, vertex.point.x};
            outline.vertices.push_back(vertex);
        }
    const double core = dimensions("Core hole") / 2;
    solid.add<Extrusion>(Material::Aluminium, Frame::at({}, xAxis, yAxis), outline, length,
                         std::vector<Extrusion::Hole>{{circle({}, core), 0, length}});
    solid.axes.push_back({{}, {length, 0, 0}, core});
    solid.telling = Side::Right;
    return solid;
}

Solid pipeFlange(const Dimensions& dimensions)
{
    Solid solid;
    const double radius = dimensions("Outer diameter") / 2;
    const double thickness = dimensions("Thickness");
    const double bore = dimensions("Bore") / 2;
    const double boltCircle = dimensions("Bolt circle") / 2;
    const double boltHole = dimensions("Bolt hole") / 2;
    const int count = dimensions.count("Bolts");
    const double neck = dimensions("Neck diameter") / 2;
    const double neckHeight = dimensions("Neck height");
    const Frame frame = Frame::at({}, -yAxis, xAxis);
    std::vector<Extrusion::Hole> holes{{circle({}, bore), 0, thickness, false, false}};
    for (int i = 0; i < count; ++i) {
        const double angle = 2 * pi * (i + 0.5) / count;
        holes.push_back(
            {circle({boltCircle * std::cos(angle), boltCircle * std::sin(angle)}, boltHole), 0, thickness});
        solid.axes.push_back(
            {frame.polar(boltCircle, angle, 0), frame.polar(boltCircle, angle, thickness), boltHole});
    }
    solid.add<Extrusion>(Material::Steel, frame, circle({}, radius), thickness, holes);
    const double mouth = bore + 0.55 * (neck - bore);
    solid.add<Revolution>(Material::Steel, frame.raised(thickness),
                          openOutline({{neck, 0},
                                       {mouth, 0.7 * neckHeight},
                                       {mouth, neckHeight},
                                       {bore, neckHeight},
                                       {bore, -thickness}}));
    solid.axes.push_back({{}, {0, -thickness - neckHeight, 0}, radius});
    solid.pitchCircles.push_back({frame, boltCircle, 0});
    return solid;
}

Solid bridgeHandle(const Dimensions& dimensions)
{
    Solid solid;
    const double half = dimensions("Hole spacing") / 2;
    const double radius = dimensions("Grip diameter") / 2;
    const double middle = dimensions("Height") - radius;
    const double bend = std::min(0.45 * middle, 2.5 * radius);
    const double foot = 0.06 * middle;
    const Vector3 left{-half + bend, 0, middle - bend};
    const Vector3 right{half - bend, 0, middle - bend};
    const std::vector<Curve> spine{LineCurve{{-half, 0, foot}, {-half, 0, middle - bend}},
                                   ArcCurve{left, -bend * xAxis, bend * zAxis, 0, pi / 2},
                                   LineCurve{{-half + bend, 0, middle}, {half - bend, 0, middle}},
                                   ArcCurve{right, bend * zAxis, bend * xAxis, 0, pi / 2},
                                   LineCurve{{half, 0, middle - bend}, {half, 0, foot}}};
    solid.addWithoutHiddenEdges<Sweep>(Material::Aluminium, spine, radius);
    for (const double x : {-half, half}) {
        const double hole = dimensions("Thread diameter") / 2;
        // A disc at the foot, with the threaded hole that the handle is held by.
        solid.add<Extrusion>(Material::DarkPlastic, Frame::at({x, 0, foot}, -zAxis, xAxis),
                             circle({}, 1.35 * radius), foot,
                             std::vector<Extrusion::Hole>{{circle({}, hole), 0, foot, false, false}});
        addBoreWall(solid, Material::DarkPlastic, {x, 0, 0}, {x, 0, 2 * foot + 2 * hole}, hole);
        solid.axes.push_back({{x, 0, 0}, {x, 0, middle - bend}, 1.35 * radius});
    }
    return solid;
}

Solid enclosure(const Dimensions& dimensions)
{
    Solid solid;
    const double width = dimensions("Width") / 2;
    const double depth = dimensions("Depth") / 2;
    const double height = dimensions("Height");
    const double wall = dimensions("Wall thickness");
    const double lid = 0.22 * height;
    const double corner = 0.12 * std::min(width, depth);
    const double base = height - lid;
    const Profile outline = roundedRectangle({-width, -depth}, {width, depth}, corner);
    const Profile cavity = roundedRectangle({wall - width, wall - depth}, {width - wall, depth - wall},
                                            std::max(0.3, corner - wall));
    auto& box = solid.add<Extrusion>(Material::LightPlastic, Frame{}, outline, base,
                                     std::vector<Extrusion::Hole>{{cavity, wall, base}});
    const double gland = dimensions("Gland hole") / 2;
    for (const double side : {-1.0, 1.0})
        drill(solid, box, Material::LightPlastic, {side * width, 0, base / 2},
              {side * (width - wall), 0, base / 2}, gland);
    const double screw = 0.45 * corner + 1;
    const double inset = corner + 0.6 * screw;
    std::vector<Extrusion::Hole> recesses;
    for (const double x : {inset - width, width - inset})
        for (const double y : {inset - depth, depth - inset}) {
            recesses.push_back({circle({x, y}, screw), 0.5 * lid, lid});
            solid.axes.push_back({{x, y, base + 0.5 * lid}, {x, y, height}, screw});
            solid.add<Extrusion>(Material::Steel, Frame::at({x, y, base + 0.5 * lid}, zAxis, xAxis),
                                 circle({}, 0.8 * screw), 0.25 * lid,
                                 std::vector<Extrusion::Hole>{
                                     {rectangle({-0.6 * screw, -0.12 * screw}, {0.6 * screw, 0.12 * screw}),
                                      0.12 * lid, 0.25 * lid}});
        }
    solid.add<Extrusion>(Material::LightPlastic, Frame::at({0, 0, base}, zAxis, xAxis), outline, lid,
                         recesses);
    solid.telling = Side::Top;
    return solid;
}

} // namespace devcatalog
