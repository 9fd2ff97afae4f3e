#include "dev/catalog/drawings/solids/Triangles.h"

#include "dev/catalog/drawings/solids/Shapes.h"

#include <BRepGProp_Face.hxx>
#include <BRepMesh_IncrementalMesh.hxx>
#include <BRep_Tool.hxx>
#include <ElCLib.hxx>
#include <Poly_Triangulation.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>

namespace devcatalog
{

namespace
{

constexpr double LargestTurn = 0.25; ///< Between neighbouring triangles, in radians.

void appendFace(std::vector<Triangle>& triangles, const TopoDS_Face& face, Material material)
{
    TopLoc_Location location;
    const Handle(Poly_Triangulation) mesh = BRep_Tool::Triangulation(face, location);
    if (mesh.IsNull())
        return;
    const BRepGProp_Face surface(face);
    const bool reversed = face.Orientation() == TopAbs_REVERSED;
    for (int i = 1; i <= mesh->NbTriangles(); ++i) {
        Triangle triangle{material, {}};
        auto& [a, b, c] = triangle.corners;
        const Poly_Triangle& nodes = mesh->Triangle(i);
        for (int corner = 0; corner < 3; ++corner) {
            const int node = nodes.Value(reversed ? 3 - corner : 1 + corner);
            gp_Pnt point;
            gp_Vec normal;
            surface.Normal(mesh->UVNode(node).X(), mesh->UVNode(node).Y(), point, normal);
            triangle.corners[static_cast<std::size_t>(corner)] = {
                mesh->Node(node).Transformed(location.Transformation()).XYZ(), normal.XYZ()};
        }
        const gp_XYZ across = (b.place - a.place).Crossed(c.place - a.place);
        if (across.Modulus() < 1e-12)
            continue;
        // A surface has no normal in some places, such as the apex of a cone.
        for (SurfacePoint& corner : triangle.corners)
            corner.normal = gp_Dir(corner.normal.Modulus() < 1e-9 ? across : corner.normal).XYZ();
        triangles.push_back(triangle);
    }
}

void appendCoil(std::vector<Triangle>& triangles, const Coil& coil)
{
    constexpr int sides = 24;
    constexpr std::size_t step = 3;
    const auto pointAt = [&coil](std::size_t index, int side) -> SurfacePoint {
        const gp_Pnt& centre = coil.centreLine[index];
        const gp_Ax2 section(centre, coil.direction(index), gp_Dir(centre.X(), centre.Y(), 0));
        const gp_XYZ normal = ElCLib::CircleValue(2 * Pi * side / sides, section, 1).XYZ() - centre.XYZ();
        return {centre.XYZ() + coil.wireRadius * normal, normal};
    };
    const std::size_t last = coil.centreLine.size() - 1;
    const gp_XYZ out[] = {coil.direction(0).Reversed().XYZ(), coil.direction(last).XYZ()};
    for (int side = 0; side < sides; ++side) {
        for (std::size_t i = 0; i + step <= last; i += step) {
            const SurfacePoint a = pointAt(i, side);
            const SurfacePoint c = pointAt(i + step, side + 1);
            triangles.push_back({Material::Steel, {a, pointAt(i, side + 1), c}});
            triangles.push_back({Material::Steel, {a, c, pointAt(i + step, side)}});
        }
        for (const std::size_t end : {std::size_t(0), last}) {
            const gp_XYZ& normal = out[end == 0 ? 0 : 1];
            triangles.push_back({Material::Steel,
                                 {SurfacePoint{coil.centreLine[end].XYZ(), normal},
                                  SurfacePoint{pointAt(end, side).place, normal},
                                  SurfacePoint{pointAt(end, side + 1).place, normal}}});
        }
    }
}

} // namespace

std::vector<Triangle> trianglesOf(const Solid& solid, double deviation)
{
    std::vector<Triangle> triangles;
    for (const Body& body : solid.bodies) {
        const BRepMesh_IncrementalMesh mesh(body.shape, deviation, false, LargestTurn); // kept in the shape
        for (TopExp_Explorer face(body.shape, TopAbs_FACE); face.More(); face.Next())
            appendFace(triangles, TopoDS::Face(face.Current()), body.material);
    }
    if (solid.coil)
        appendCoil(triangles, *solid.coil);
    return triangles;
}

} // namespace devcatalog
