#pragma once

#include "dev/catalog/drawings/solids/Solid.h"

#include <array>

namespace devcatalog
{

/// A piece of a surface, with the surface's unit normals, which point out of the material, at its corners.
struct Triangle {
    Material material = Material::Steel;
    std::array<gp_XYZ, 3> corners;
    std::array<gp_XYZ, 3> normals;
};

/// @param deviation how far a triangle may be from the surface, in millimetres.
/// @throws Standard_Failure when the kernel fails.
std::vector<Triangle> trianglesOf(const Solid& solid, double deviation);

} // namespace devcatalog
