#include "dev/catalog/drawings/views/HiddenLines.h"

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

void appendEdges(std::vector<Stroke>& strokes, const TopoDS_Shape& edges, bool hidden)
{
    if (edges.IsNull())
        return;
    for (TopExp_Explorer each(edges, TopAbs_EDGE); each.More(); each.Next()) {
        const BRepAdaptor_Curve curve(TopoDS::Edge(each.Current()));
        strokes.push_back({curve, curve.FirstParameter(), curve.LastParameter(), hidden});
    }
}

/// Where a bar bends away from the viewer its whole section is an outline, which the kernel takes for
/// visible.
std::vector<Stroke> withoutCovered(const std::vector<Stroke>& outlines, Sight& sight)
{
    constexpr int steps = 6;
    constexpr double beyondOwnSurface = 0.05;
    std::vector<Stroke> result;
    for (const Stroke& outline : outlines) {
        const auto place = [&outline](double at) { return outline.curve.Value(at); };
        for (const Sight::Piece& piece :
             sight.split(outline.from, outline.to, place, steps, beyondOwnSurface))
            if (piece.visible)
                result.push_back({outline.curve, piece.from, piece.to, false});
    }
    return result;
}

/// What can be seen, or cannot, of one of the algorithm's shapes.
std::vector<Stroke> strokesOf(HLRBRep_HLRToShape& result, const TopoDS_Shape& shape, bool hidden,
                              Sight& sight)
{
    std::vector<Stroke> outlines;
    appendEdges(outlines, result.CompoundOfEdges(shape, HLRBRep_OutLine, !hidden, true), hidden);
    std::vector<Stroke> strokes = hidden ? outlines : withoutCovered(outlines, sight);
    appendEdges(strokes, result.CompoundOfEdges(shape, HLRBRep_Sharp, !hidden, true), hidden);
    return strokes;
}

} // namespace

std::vector<TopoDS_Shape> shapesSeen(const Solid& solid, const Camera& camera)
{
    std::vector<TopoDS_Shape> shapes;
    for (const Body& body : solid.bodies) {
        const bool simplified = !body.fromTheSide.IsNull() && camera.seesFromTheSide(gp::DY());
        shapes.push_back(simplified ? body.fromTheSide : body.shape);
    }
    return shapes;
}

std::vector<Stroke> findStrokes(const Solid& solid, const Camera& camera, Sight& sight, bool withHidden)
{
    std::vector<Stroke> strokes;
    if (solid.bodies.empty())
        return strokes;
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
    for (std::size_t i = 0; i < shapes.size(); ++i)
        for (const bool hidden : {false, true}) {
            if (hidden && !(withHidden && solid.bodies[i].hiddenEdges))
                continue;
            const std::vector<Stroke> found = strokesOf(result, shapes[i], hidden, sight);
            strokes.insert(strokes.end(), found.begin(), found.end());
        }
    return strokes;
}

} // namespace devcatalog
