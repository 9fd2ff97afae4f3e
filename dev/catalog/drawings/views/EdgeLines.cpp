#include "dev/catalog/drawings/views/ViewLines.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRepLib.hxx>
#include <HLRAlgo_Projector.hxx>
#include <HLRBRep_Algo.hxx>
#include <HLRBRep_HLRToShape.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>

namespace devcatalog
{

namespace
{

/// Angle in radians up to which surfaces that meet share a tangent.
constexpr double SharedTangent = 1e-4;

/// The curves in space of what the kernel has found; it gives a null shape where that is nothing.
std::vector<BRepAdaptor_Curve> curvesOf(const TopoDS_Shape& edges)
{
    std::vector<BRepAdaptor_Curve> curves;
    if (!edges.IsNull())
        for (TopExp_Explorer each(edges, TopAbs_EDGE); each.More(); each.Next())
            curves.emplace_back(TopoDS::Edge(each.Current()));
    return curves;
}

void addWhole(LineWork& lineWork, dwg::LineKind kind, const TopoDS_Shape& edges)
{
    for (const BRepAdaptor_Curve& curve : curvesOf(edges))
        lineWork.add(kind, curve, curve.FirstParameter(), curve.LastParameter());
}

/// Where a bar bends away from the viewer its whole section is an outline, which the kernel takes for
/// visible.
void addVisible(LineWork& lineWork, const TopoDS_Shape& outlines, Sight& sight)
{
    constexpr int steps = 6;
    constexpr double beyondOwnSurface = 0.05;
    for (const BRepAdaptor_Curve& curve : curvesOf(outlines)) {
        const auto place = [&curve](double at) { return curve.Value(at); };
        for (const Sight::Piece& piece :
             sight.split(curve.FirstParameter(), curve.LastParameter(), place, steps, beyondOwnSurface))
            if (piece.visible)
                lineWork.add(dwg::LineKind::Outline, curve, piece.from, piece.to);
    }
}

} // namespace

void addEdgeLines(LineWork& lineWork, const Solid& solid, const Camera& camera, Sight& sight)
{
    if (solid.bodies.empty())
        return;
    const Handle(HLRBRep_Algo) algorithm = new HLRBRep_Algo();
    const std::vector<TopoDS_Shape> shapes = shapesSeen(solid, camera);
    for (const TopoDS_Shape& shape : shapes) {
        BRepLib::EncodeRegularity(shape, SharedTangent);
        algorithm->Add(shape);
    }
    algorithm->Projector(HLRAlgo_Projector(gp_Ax2(gp_Pnt(), camera.toward, camera.right)));
    algorithm->Update();
    algorithm->Hide();
    HLRBRep_HLRToShape result(algorithm);
    for (std::size_t i = 0; i < shapes.size(); ++i) {
        const auto edges = [&](HLRBRep_TypeOfResultingEdge type, bool visible) {
            return result.CompoundOfEdges(shapes[i], type, visible, true);
        };
        addVisible(lineWork, edges(HLRBRep_OutLine, true), sight);
        addWhole(lineWork, dwg::LineKind::Outline, edges(HLRBRep_Sharp, true));
        if (camera.pictorial || !solid.bodies[i].hiddenEdges)
            continue;
        for (const HLRBRep_TypeOfResultingEdge type : {HLRBRep_OutLine, HLRBRep_Sharp})
            addWhole(lineWork, dwg::LineKind::Hidden, edges(type, false));
    }
}

} // namespace devcatalog
