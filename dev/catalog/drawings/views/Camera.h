#pragma once

#include "dev/catalog/drawings/solids/Vector3.h"
#include "dev/dwg/Drawing.h"

namespace devcatalog
{

/// A parallel projection.
struct Camera {
    Vector3 right;
    Vector3 up;
    Vector3 toward;         ///< From the part to the viewer.
    bool pictorial = false; ///< Shows three sides at once: without hidden edges and centre lines.

    dwg::Point2 project(const Vector3& point) const { return {dot(point, right), dot(point, up)}; }
    double depth(const Vector3& point) const { return dot(point, toward); }

    static Camera frontView();
    static Camera topView();
    static Camera rightView();
    static Camera backView();
    static Camera bottomView();
    static Camera leftView();
    static Camera isometricView();
    static Camera dimetricView();
    static Camera trimetricView();
};

} // namespace devcatalog
