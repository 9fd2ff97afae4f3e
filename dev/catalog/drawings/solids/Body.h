#pragma once

#include "dev/catalog/drawings/solids/Curve.h"

#include <vector>

namespace devcatalog
{

/// A planar (or nearly planar) piece of a body's surface: the area inside an odd number of its loops.
/// Together the faces of a body lie inside it or on its surface, never outside: so an edge is not covered by
/// the facets of the curved surface it belongs to.
struct Face {
    std::vector<std::vector<Vector3>> loops;
    Vector3 normal; ///< Unit vector pointing out of the material.
};

/// @return the face with four corners, counter-clockwise as seen from outside.
Face quadrangle(const Vector3& a, const Vector3& b, const Vector3& c, const Vector3& d);

/// A piece of a part: what can be drawn of it, and what hides other things behind it.
class Body
{
public:
    Body() = default;
    Body(const Body&) = delete;
    Body& operator=(const Body&) = delete;
    virtual ~Body() = default;

    /// Appends edges, and the outlines of curved surfaces as they appear from one side.
    /// @param toward unit vector from the body to the viewer.
    virtual void appendCurves(std::vector<Curve>& curves, const Vector3& toward) const = 0;

    /// Appends the surface.
    virtual void appendFaces(std::vector<Face>& faces, const Vector3& toward) const = 0;
};

} // namespace devcatalog
