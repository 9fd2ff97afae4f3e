#include "dev/catalog/drawings/solids/Shapes.h"

#include <BRepAdaptor_Surface.hxx>
#include <BRepAlgoAPI_Common.hxx>
#include <BRepAlgoAPI_Cut.hxx>
#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepBuilderAPI_Transform.hxx>
#include <BRepLib.hxx>
#include <BRepOffsetAPI_MakePipe.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <BRepPrimAPI_MakeRevol.hxx>
#include <ElSLib.hxx>
#include <GC_MakeArcOfCircle.hxx>
#include <LocOpe_FindEdges.hxx>
#include <LocOpe_Gluer.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_ListOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Wire.hxx>
#include <gp_Ax3.hxx>
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

/// @return the shape's face that lies in the xy plane of a frame.
TopoDS_Face faceIn(const gp_Ax2& plane, const TopoDS_Shape& shape)
{
    for (TopExp_Explorer each(shape, TopAbs_FACE); each.More(); each.Next()) {
        const BRepAdaptor_Surface surface(TopoDS::Face(each.Current()), false);
        if (surface.GetType() == GeomAbs_Plane && surface.Plane().Distance(plane.Location()) < 1e-6 &&
            surface.Plane().Axis().IsParallel(plane.Axis(), 1e-6))
            return surface.Face();
    }
    throw Standard_Failure("shapes do not touch");
}

constexpr double EndHeight = 0.065; ///< How much of a hexagon has its chamfer, of the width across flats.

/// The chamfered end of a hexagon. It takes the kernel long, so all are copies of one.
TopoDS_Shape chamferedEnd(const gp_Ax2& frame, double flats)
{
    static const TopoDS_Shape unit = [] {
        constexpr double face = 0.475; // the radius of the flat left by the chamfer
        const Outline profile{{face + EndHeight / std::tan(Pi / 6), 0}, {face, EndHeight}};
        return BRepAlgoAPI_Common(prism({}, hexagon(1), 2 * EndHeight), turned({}, profile)).Shape();
    }();
    gp_Trsf placed;
    placed.SetDisplacement(gp_Ax3(), gp_Ax3(frame));
    placed.SetScaleFactor(flats);
    return BRepBuilderAPI_Transform(unit, placed, true);
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
    const TopoDS_Shape shape = BRepPrimAPI_MakePrism(face.Face(), height * gp_Vec(frame.Direction()));
    // The kernel else finds the curves of edges on planes anew each time that it needs them.
    for (TopExp_Explorer side(shape, TopAbs_FACE); side.More(); side.Next())
        for (TopExp_Explorer edge(side.Current(), TopAbs_EDGE); edge.More(); edge.Next())
            BRepLib::BuildPCurveForEdgeOnPlane(TopoDS::Edge(edge.Current()), TopoDS::Face(side.Current()));
    return shape;
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
    const double end = EndHeight * flats;
    const gp_Ax2 top = raised(frame, height - end);
    const gp_Ax2 bottom = raised(frame, bothEnds ? end : 0);
    const TopoDS_Shape body = prism(bottom, hexagon(flats), height - (bothEnds ? 2 : 1) * end);
    const TopoDS_Shape head = joined(body, chamferedEnd(top, flats), {top});
    const gp_Ax2 down(bottom.Location(), -bottom.Direction(), bottom.XDirection());
    return bothEnds ? joined(head, chamferedEnd(down, flats), {down}) : head;
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

TopoDS_Shape joined(const TopoDS_Shape& shape, const TopoDS_Shape& other, const std::vector<gp_Ax2>& planes)
{
    LocOpe_Gluer gluer(shape, other);
    for (const gp_Ax2& plane : planes) {
        const TopoDS_Face face = faceIn(plane, shape);
        const TopoDS_Face touching = faceIn(plane, other);
        gluer.Bind(touching, face);
        LocOpe_FindEdges shared(touching, face);
        for (shared.InitIterator(); shared.More(); shared.Next())
            gluer.Bind(shared.EdgeFrom(), shared.EdgeTo());
    }
    gluer.Perform();
    if (!gluer.IsDone())
        throw Standard_Failure("shapes could not be joined");
    return gluer.ResultingShape();
}

TopoDS_Shape cut(const TopoDS_Shape& shape, const std::vector<TopoDS_Shape>& tools)
{
    TopTools_ListOfShape arguments;
    arguments.Append(shape);
    TopTools_ListOfShape others;
    for (const TopoDS_Shape& tool : tools)
        others.Append(tool);
    BRepAlgoAPI_Cut operation;
    operation.SetArguments(arguments);
    operation.SetTools(others);
    operation.Build();
    if (operation.HasErrors())
        throw Standard_Failure("shapes could not be cut");
    operation.SimplifyResult();
    return operation.Shape();
}

} // namespace devcatalog
