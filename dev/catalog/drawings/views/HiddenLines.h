#pragma once

#include "dev/catalog/drawings/solids/Solid.h"
#include "dev/catalog/drawings/views/Sight.h"

#include <BRepAdaptor_Curve.hxx>

#include <vector>

namespace devcatalog
{

/// A piece of an edge, or of the outline of a curved surface, that is wholly visible or wholly hidden.
struct Stroke {
    BRepAdaptor_Curve curve; ///< In space.
    double from = 0.0;       ///< Parameters on the curve.
    double to = 0.0;
    bool hidden = false;
};

/// @return the bodies' shapes as a camera sees them, in the order of the bodies.
std::vector<TopoDS_Shape> shapesSeen(const Solid& solid, const Camera& camera);

/// Finds what of the bodies' edges and outlines can be seen. Seams of closed surfaces and edges where
/// surfaces share a tangent are left out.
/// @param withHidden whether hidden pieces are wanted too.
/// @throws Standard_Failure when the kernel fails.
std::vector<Stroke> findStrokes(const Solid& solid, const Camera& camera, Sight& sight, bool withHidden);

} // namespace devcatalog
