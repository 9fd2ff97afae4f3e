#pragma once

#include "dev/catalog/drawings/solids/Frame.h"

#include <variant>
#include <vector>

namespace devcatalog
{

struct LineCurve {
    Vector3 from;
    Vector3 to;
};

/// Points centre + cos(angle) u + sin(angle) v; u and v are perpendicular and as long as the radius.
struct ArcCurve {
    Vector3 centre;
    Vector3 u;
    Vector3 v;
    double from = 0.0;
    double to = 2 * pi;

    double sweep() const { return to - from; }
    bool isFullCircle() const { return std::abs(sweep()) > 2 * pi - 1e-9; }
};

/// A free smooth curve, given by points that lie closely on it.
struct PathCurve {
    std::vector<Vector3> points;
};

/// A curve in space, with a parameter from 0 to 1.
using Curve = std::variant<LineCurve, ArcCurve, PathCurve>;

/// @return the circle around a frame's z axis at height z.
ArcCurve circleAround(const Frame& frame, double radius, double z);

Vector3 pointAt(const Curve& curve, double t);

/// @return the derivative by the parameter.
Vector3 derivativeAt(const Curve& curve, double t);

/// @return the part of a curve between two parameters; to may exceed 1 on a full circle.
Curve portion(const Curve& curve, double from, double to);

/// @return parameters whose points, joined by straight lines, show the curve; the first is 0 and the last 1.
std::vector<double> samplesOf(const Curve& curve);

} // namespace devcatalog
