#pragma once

#include "dev/catalog/drawings/solids/Vector3.h"

namespace devcatalog
{

/// A right-handed coordinate system in space; its axes are perpendicular unit vectors.
struct Frame {
    Vector3 origin;
    Vector3 x = xAxis;
    Vector3 y = yAxis;
    Vector3 z = zAxis;

    /// @return the frame with the given axes; y completes them.
    static Frame at(const Vector3& origin, const Vector3& zDirection, const Vector3& xDirection)
    {
        return {origin, xDirection, cross(zDirection, xDirection), zDirection};
    }

    Vector3 point(double px, double py, double pz) const { return origin + px * x + py * y + pz * z; }

    /// @return the point at an angle around the z axis, in radians from the x axis.
    Vector3 polar(double radius, double angle, double pz) const
    {
        return point(radius * std::cos(angle), radius * std::sin(angle), pz);
    }

    /// @return the frame moved along its own z axis.
    Frame raised(double distance) const { return {origin + distance * z, x, y, z}; }
};

} // namespace devcatalog
