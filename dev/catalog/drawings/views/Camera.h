#pragma once

#include "dev/dwg/Drawing.h"

#include <gp_Dir.hxx>
#include <gp_Pnt.hxx>

namespace devcatalog
{

/// A parallel projection.
struct Camera {
    gp_Dir right;
    gp_Dir up;
    gp_Dir toward;          ///< From the part to the viewer.
    bool pictorial = false; ///< Shows three sides at once: without hidden edges and centre lines.

    dwg::Point2 project(const gp_Pnt& point) const;
    double depth(const gp_Pnt& point) const;

    bool seesEndOn(const gp_Dir& axis) const { return toward.IsParallel(axis, Straight); }
    bool seesFromTheSide(const gp_Dir& axis) const { return toward.IsNormal(axis, Straight); }

    static Camera frontView();
    static Camera topView();
    static Camera rightView();
    static Camera backView();
    static Camera bottomView();
    static Camera leftView();
    static Camera isometricView();
    static Camera dimetricView();
    static Camera trimetricView();

private:
    static constexpr double Straight = 1e-9; ///< radians
};

} // namespace devcatalog
