#pragma once

#include "dev/catalog/drawings/solids/Solid.h"

#include <array>

namespace devcatalog
{

/// A place on a surface, with the unit normal there that points out of the material.
struct SurfacePoint {
    gp_XYZ place;
    gp_XYZ normal;
};

/// A piece of a surface.
struct Triangle {
    Material material = Material::Steel;
    std::array<SurfacePoint, 3> corners;
};

/// @param deviation how far a triangle may be from the surface, in millimetres.
/// @throws Standard_Failure when the kernel fails.
std::vector<Triangle> trianglesOf(const Solid& solid, double deviation);

} // namespace devcatalog
