#include "dev/catalog/drawings/solids/Shapes.h"

#include <BRepAlgoAPI_Common.hxx>
#include <BRepAlgoAPI_Cut.hxx>
#include <BRepAlgoAPI_Fuse.hxx>
#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepOffsetAPI_MakePipe.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <BRepPrimAPI_MakeRevol.hxx>
#include <GC_MakeArcOfCircle.hxx>
#include <TopTools_ListOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Wire.hxx>
#include <gp_Circ.hxx>

#include <cmath>

namespace devcatalog
{

namespace
{

/// @param place turns a point of the outline into one in space.
template <typename Place>
TopoDS_Wire wireOf(const Outline& outline, const Place& place)
{
    BRepBuilderAPI_MakeWire wire;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const auto& [from, bulge] = outline[i];
        const dwg::Point2 to = outline[(i + 1) % outline.size()].point;
        if (bulge == 0.0) {
            wire.Add(BRepBuilderAPI_MakeEdge(place(from), place(to)));
            continue;
        }
        // An arc's middle lies to the right of its chord, by the bulge times half of it.
        const dwg::Point2 middle{(from.x + to.x + bulge * (to.y - from.y)) / 2,
                                 (from.y + to.y - bulge * (to.x - from.x)) / 2};
        wire.Add(BRepBuilderAPI_MakeEdge(GC_MakeArcOfCircle(place(from), place(middle), place(to)).Value()));
    }
    return wire.Wire();
}

TopTools_ListOfShape listOf(const std::vector<TopoDS_Shape>& shapes)
{
    TopTools_ListOfShape list;
    for (const TopoDS_Shape& shape : shapes)
        list.Append(shape);
    return list;
}

template <typename Operation>
TopoDS_Shape combined(const std::vector<TopoDS_Shape>& shapes, const std::vector<TopoDS_Shape>& tools)
{
    Operation operation;
    operation.SetArguments(listOf(shapes));
    operation.SetTools(listOf(tools));
    operation.Build();
    if (operation.HasErrors())
        throw Standard_Failure("shapes could not be combined");
    operation.SimplifyResult();
    return operation.Shape();
}

} // namespace

const double QuarterTurn = std::tan(Pi / 8);

gp_Ax2 acrossX(double x)
{
    return {gp_Pnt(x, 0, 0), gp::DX(), gp::DY()};
}

gp_Ax2 frameAlong(const gp_Pnt& from, const gp_Pnt& to)
{
    return {from, gp_Dir(gp_Vec(from, to))};
}

gp_Ax2 raised(const gp_Ax2& frame, double z)
{
    return frame.Translated(z * gp_Vec(frame.Direction()));
}

gp_Pnt pointIn(const gp_Ax2& frame, double x, double y, double z)
{
    return frame.Location().Translated(x * gp_Vec(frame.XDirection()) + y * gp_Vec(frame.YDirection()) +
                                       z * gp_Vec(frame.Direction()));
}

gp_Pnt polarPoint(const gp_Ax2& frame, double radius, double angle, double z)
{
    return pointIn(frame, radius * std::cos(angle), radius * std::sin(angle), z);
}

Outline circle(double radius)
{
    return {{{radius, 0}, 1}, {{-radius, 0}, 1}};
}

Outline polygon(const std::vector<dwg::Point2>& corners)
{
    Outline outline;
    for (const dwg::Point2& corner : corners)
        outline.push_back({corner, 0.0});
    return outline;
}

Outline roundedRectangle(double width, double height, double radius)
{
    const double x = width / 2;
    const double y = height / 2;
    return {{{radius - x, -y}, 0}, {{x - radius, -y}, QuarterTurn},
            {{x, radius - y}, 0},  {{x, y - radius}, QuarterTurn},
            {{x - radius, y}, 0},  {{radius - x, y}, QuarterTurn},
            {{-x, y - radius}, 0}, {{-x, radius - y}, QuarterTurn}};
}

Outline hexagon(double flats)
{
    Outline outline;
    for (int i = 0; i < 6; ++i)
        outline.push_back(
            {{flats / std::sqrt(3.0) * std::cos(i * Pi / 3), flats / std::sqrt(3.0) * std::sin(i * Pi / 3)},
             0.0});
    return outline;
}

TopoDS_Shape cylinder(const gp_Ax2& frame, double radius, double height)
{
    return BRepPrimAPI_MakeCylinder(frame, radius, height);
}

TopoDS_Shape cylinder(const gp_Pnt& from, const gp_Pnt& to, double radius)
{
    return cylinder(frameAlong(from, to), radius, from.Distance(to));
}

TopoDS_Shape prism(const gp_Ax2& frame, const Outline& outline, double height, const Outline& hole)
{
    const auto place = [&frame](const dwg::Point2& point) { return pointIn(frame, point.x, point.y, 0); };
    BRepBuilderAPI_MakeFace face(wireOf(outline, place), true);
    if (!hole.empty())
        face.Add(TopoDS::Wire(wireOf(hole, place).Reversed()));
    return BRepPrimAPI_MakePrism(face.Face(), height * gp_Vec(frame.Direction()));
}

TopoDS_Shape revolved(const gp_Ax2& frame, const Outline& outline)
{
    const TopoDS_Wire wire =
        wireOf(outline, [&frame](const dwg::Point2& point) { return pointIn(frame, point.x, 0, point.y); });
    return BRepPrimAPI_MakeRevol(BRepBuilderAPI_MakeFace(wire, true).Face(), frame.Axis());
}

TopoDS_Shape hexagonHead(const gp_Ax2& frame, double flats, double height, bool bothEnds)
{
    const double corner = 1.01 * flats / std::sqrt(3.0);
    const double turned = 0.475 * flats; // the radius of the flat left by the chamfer
    const double rise = (corner - turned) * std::tan(Pi / 6);
    Outline turning = polygon({{0, 0}, {corner, 0}, {corner, height - rise}, {turned, height}, {0, height}});
    if (bothEnds)
        turning = polygon(
            {{0, 0}, {turned, 0}, {corner, rise}, {corner, height - rise}, {turned, height}, {0, height}});
    return combined<BRepAlgoAPI_Common>({prism(frame, hexagon(flats), height)}, {revolved(frame, turning)});
}

TopoDS_Shape bentBar(const std::vector<gp_Pnt>& corners, double bendRadius, double radius)
{
    BRepBuilderAPI_MakeWire wire;
    gp_Pnt from = corners.front();
    for (std::size_t i = 1; i + 1 < corners.size(); ++i) {
        const gp_Vec before(gp_Dir(gp_Vec(corners[i - 1], corners[i])));
        const gp_Vec after(gp_Dir(gp_Vec(corners[i], corners[i + 1])));
        const double half = before.Angle(after) / 2;
        const double reach = bendRadius * std::tan(half);
        const gp_Pnt start = corners[i].Translated(-reach * before);
        const gp_Pnt end = corners[i].Translated(reach * after);
        wire.Add(BRepBuilderAPI_MakeEdge(from, start));
        wire.Add(BRepBuilderAPI_MakeEdge(GC_MakeArcOfCircle(start, before, end).Value()));
        from = end;
    }
    wire.Add(BRepBuilderAPI_MakeEdge(from, corners.back()));
    const gp_Circ section(frameAlong(corners.front(), corners[1]), radius);
    const TopoDS_Wire edge = BRepBuilderAPI_MakeWire(BRepBuilderAPI_MakeEdge(section).Edge());
    return BRepOffsetAPI_MakePipe(wire.Wire(), BRepBuilderAPI_MakeFace(edge).Face()).Shape();
}

TopoDS_Shape fused(const std::vector<TopoDS_Shape>& shapes)
{
    return combined<BRepAlgoAPI_Fuse>({shapes.front()}, {shapes.begin() + 1, shapes.end()});
}

TopoDS_Shape cut(const TopoDS_Shape& shape, const std::vector<TopoDS_Shape>& tools)
{
    return combined<BRepAlgoAPI_Cut>({shape}, tools);
}

} // namespace devcatalog
