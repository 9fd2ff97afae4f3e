#include "dev/catalog/drawings/solids/Triangles.h"

#include "dev/catalog/drawings/solids/Shapes.h"

#include <BRepAdaptor_Surface.hxx>
#include <BRepLProp_SLProps.hxx>
#include <BRepMesh_IncrementalMesh.hxx>
#include <BRep_Tool.hxx>
#include <Poly_Triangulation.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>

#include <cmath>

namespace devcatalog
{

namespace
{

constexpr double LargestTurn = 0.25; ///< Between neighbouring triangles, in radians.

/// Gives the normals of a meshed face.
class FaceNormals
{
public:
    explicit FaceNormals(const TopoDS_Face& face)
        : m_properties(BRepAdaptor_Surface(face), 1, 1e-9),
          m_sense(face.Orientation() == TopAbs_REVERSED ? -1 : 1)
    {
    }

    /// @param otherwise where the surface has none, as in the apex of a cone.
    gp_XYZ at(const gp_Pnt2d& place, const gp_XYZ& otherwise)
    {
        m_properties.SetParameters(place.X(), place.Y());
        return m_properties.IsNormalDefined() ? m_sense * m_properties.Normal().XYZ() : otherwise;
    }

private:
    BRepLProp_SLProps m_properties;
    double m_sense;
};

void appendFace(std::vector<Triangle>& triangles, const TopoDS_Face& face, Material material)
{
    TopLoc_Location location;
    const Handle(Poly_Triangulation) mesh = BRep_Tool::Triangulation(face, location);
    if (mesh.IsNull())
        return;
    FaceNormals normals(face);
    const bool reversed = face.Orientation() == TopAbs_REVERSED;
    for (int i = 1; i <= mesh->NbTriangles(); ++i) {
        std::array<int, 3> nodes{};
        mesh->Triangle(i).Get(nodes[0], nodes[1], nodes[2]);
        if (reversed)
            std::swap(nodes[1], nodes[2]);
        Triangle triangle;
        triangle.material = material;
        for (std::size_t corner = 0; corner < 3; ++corner)
            triangle.corners[corner] = mesh->Node(nodes[corner]).Transformed(location.Transformation()).XYZ();
        const auto& [a, b, c] = triangle.corners;
        const gp_XYZ across = (b - a).Crossed(c - a);
        if (across.Modulus() < 1e-12)
            continue;
        for (std::size_t corner = 0; corner < 3; ++corner)
            triangle.normals[corner] = normals.at(mesh->UVNode(nodes[corner]), across.Normalized());
        triangles.push_back(triangle);
    }
}

/// Appends the two triangles between neighbouring places along and around a coil's wire.
void appendQuadrangle(std::vector<Triangle>& triangles, const std::array<gp_XYZ, 4>& corners,
                      const std::array<gp_XYZ, 4>& normals)
{
    triangles.push_back(
        {Material::Steel, {corners[0], corners[1], corners[2]}, {normals[0], normals[1], normals[2]}});
    triangles.push_back(
        {Material::Steel, {corners[0], corners[2], corners[3]}, {normals[0], normals[2], normals[3]}});
}

void appendCoil(std::vector<Triangle>& triangles, const Coil& coil)
{
    constexpr int sides = 24;
    constexpr std::size_t step = 3;
    const auto normalAt = [&coil](std::size_t index, int side) {
        const gp_Pnt& centre = coil.centreLine[index];
        const gp_Ax2 section(centre, coil.direction(index), gp_Dir(centre.X(), centre.Y(), 0));
        return (polarPoint(section, 1, 2 * Pi * side / sides, 0).XYZ() - centre.XYZ());
    };
    const auto cornerAt = [&](std::size_t index, const gp_XYZ& normal) {
        return coil.centreLine[index].XYZ() + coil.wireRadius * normal;
    };
    for (std::size_t i = 0; i + step < coil.centreLine.size(); i += step)
        for (int side = 0; side < sides; ++side) {
            const std::array<gp_XYZ, 4> normals{normalAt(i, side), normalAt(i, side + 1),
                                                normalAt(i + step, side + 1), normalAt(i + step, side)};
            appendQuadrangle(triangles,
                             {cornerAt(i, normals[0]), cornerAt(i, normals[1]),
                              cornerAt(i + step, normals[2]), cornerAt(i + step, normals[3])},
                             normals);
        }
    for (const std::size_t end : {std::size_t(0), coil.centreLine.size() - 1}) {
        const gp_XYZ centre = coil.centreLine[end].XYZ();
        const gp_XYZ out = (end == 0 ? -1 : 1) * coil.direction(end).XYZ();
        for (int side = 0; side < sides; ++side)
            triangles.push_back(
                {Material::Steel,
                 {centre, cornerAt(end, normalAt(end, side)), cornerAt(end, normalAt(end, side + 1))},
                 {out, out, out}});
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
