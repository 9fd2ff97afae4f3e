#include "dev/catalog/drawings/solids/Shapes.h"

#include <BRepAlgoAPI_BooleanOperation.hxx>
#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepOffsetAPI_MakePipe.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <BRepPrimAPI_MakeRevol.hxx>
#include <ElSLib.hxx>
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

/// A frame with its z axis from one point toward another.
gp_Ax2 frameAlong(const gp_Pnt& from, const gp_Pnt& to)
{
    return {from, gp_Dir(gp_Vec(from, to))};
}

TopoDS_Wire wireOf(const gp_Ax2& frame, const Outline& outline)
{
    const auto place = [&frame](double x, double y) { return ElSLib::PlaneValue(x, y, frame); };
    BRepBuilderAPI_MakeWire wire;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const auto& [x, y, bulge] = outline[i];
        const Corner& to = outline[(i + 1) % outline.size()];
        const gp_Pnt start = place(x, y);
        const gp_Pnt end = place(to.x, to.y);
        if (bulge == 0.0) {
            wire.Add(BRepBuilderAPI_MakeEdge(start, end));
            continue;
        }
        // An arc's middle lies to the right of its chord, by the bulge times half of it.
        const gp_Pnt middle = place((x + to.x + bulge * (to.y - y)) / 2, (y + to.y - bulge * (to.x - x)) / 2);
        wire.Add(BRepBuilderAPI_MakeEdge(GC_MakeArcOfCircle(start, middle, end).Value()));
    }
    return wire.Wire();
}

TopoDS_Shape combined(BOPAlgo_Operation kind, const TopoDS_Shape& shape,
                      const std::vector<TopoDS_Shape>& tools)
{
    TopTools_ListOfShape arguments;
    arguments.Append(shape);
    TopTools_ListOfShape others;
    for (const TopoDS_Shape& tool : tools)
        others.Append(tool);
    BRepAlgoAPI_BooleanOperation operation;
    operation.SetOperation(kind);
    operation.SetArguments(arguments);
    operation.SetTools(others);
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

gp_Ax2 towardFront(double y, double z)
{
    return {gp_Pnt(0, y, z), -gp::DY(), gp::DX()};
}

gp_Ax2 raised(const gp_Ax2& frame, double z)
{
    return frame.Translated(z * gp_Vec(frame.Direction()));
}

Outline circle(double radius)
{
    return {{radius, 0, 1}, {-radius, 0, 1}};
}

Outline rectangle(double left, double bottom, double right, double top)
{
    return {{left, bottom}, {right, bottom}, {right, top}, {left, top}};
}

Outline roundedRectangle(double width, double height, double radius)
{
    const double x = width / 2;
    const double y = height / 2;
    return {{radius - x, -y}, {x - radius, -y, QuarterTurn}, {x, radius - y},  {x, y - radius, QuarterTurn},
            {x - radius, y},  {radius - x, y, QuarterTurn},  {-x, y - radius}, {-x, radius - y, QuarterTurn}};
}

Outline hexagon(double flats)
{
    const double radius = flats / std::sqrt(3.0);
    Outline outline;
    for (int i = 0; i < 6; ++i)
        outline.push_back({radius * std::cos(i * Pi / 3), radius * std::sin(i * Pi / 3)});
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
    BRepBuilderAPI_MakeFace face(wireOf(frame, outline), true);
    if (!hole.empty())
        face.Add(TopoDS::Wire(wireOf(frame, hole).Reversed()));
    return BRepPrimAPI_MakePrism(face.Face(), height * gp_Vec(frame.Direction()));
}

TopoDS_Shape revolved(const gp_Ax2& frame, const Outline& outline)
{
    const gp_Ax2 half(frame.Location(), -frame.YDirection(), frame.XDirection());
    const TopoDS_Wire wire = wireOf(half, outline);
    return BRepPrimAPI_MakeRevol(BRepBuilderAPI_MakeFace(wire, true).Face(), frame.Axis());
}

TopoDS_Shape turned(const gp_Ax2& frame, Outline profile, double bore)
{
    profile.insert(profile.begin(), {bore, profile.front().y});
    if (profile.back().x > bore)
        profile.push_back({bore, profile.back().y});
    return revolved(frame, profile);
}

TopoDS_Shape hexagonHead(const gp_Ax2& frame, double flats, double height, bool bothEnds)
{
    const double corner = 1.01 * flats / std::sqrt(3.0);
    const double face = 0.475 * flats; // the radius of the flat left by the chamfer
    const double rise = (corner - face) * std::tan(Pi / 6);
    Outline profile{{corner, 0}, {corner, height - rise}, {face, height}};
    if (bothEnds)
        profile = {{face, 0}, {corner, rise}, {corner, height - rise}, {face, height}};
    return combined(BOPAlgo_COMMON, prism(frame, hexagon(flats), height), {turned(frame, profile)});
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

TopoDS_Shape fused(const TopoDS_Shape& shape, const TopoDS_Shape& other)
{
    return combined(BOPAlgo_FUSE, shape, {other});
}

TopoDS_Shape cut(const TopoDS_Shape& shape, const std::vector<TopoDS_Shape>& tools)
{
    return combined(BOPAlgo_CUT, shape, tools);
}

} // namespace devcatalog
