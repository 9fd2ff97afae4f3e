#pragma once

#include <gp.hxx>
#include <gp_Ax1.hxx>
#include <gp_Dir.hxx>
#include <gp_Pnt.hxx>
#include <gp_Pnt2d.hxx>

namespace devcatalog
{

/// A parallel projection.
struct Camera {
    gp_Dir right;
    gp_Dir up;
    gp_Dir toward = right.Crossed(up); ///< From the part to the viewer.
    bool pictorial = false;            ///< Shows three sides at once: without hidden edges and centre lines.

    gp_Pnt2d project(const gp_Pnt& point) const
    {
        return {point.XYZ().Dot(right.XYZ()), point.XYZ().Dot(up.XYZ())};
    }
    double depth(const gp_Pnt& point) const { return point.XYZ().Dot(toward.XYZ()); }

    bool seesEndOn(const gp_Dir& axis) const { return toward.IsParallel(axis, Straight); }
    bool seesFromTheSide(const gp_Dir& axis) const { return toward.IsNormal(axis, Straight); }

    static Camera frontView() { return {gp::DX(), gp::DZ()}; }
    static Camera topView() { return {gp::DX(), gp::DY()}; }
    static Camera rightView() { return {gp::DY(), gp::DZ()}; }
    static Camera backView() { return {-gp::DX(), gp::DZ()}; }
    static Camera bottomView() { return {gp::DX(), -gp::DY()}; }
    static Camera leftView() { return {-gp::DY(), gp::DZ()}; }

    // At these angles all three axes, or two of them, are shortened alike; the dimetric view draws depth at
    // half size.
    static Camera isometricView() { return axonometric(45, 35.26438968); }
    static Camera dimetricView() { return axonometric(20.70481105, 19.47122063); }
    static Camera trimetricView() { return axonometric(30, 25); }

private:
    static constexpr double Straight = 1e-9; ///< radians

    /// From the front, turned to show the right side and tilted to show the top; angles in degrees.
    static Camera axonometric(double turn, double tilt)
    {
        const gp_Dir right = gp::DX().Rotated(gp::OZ(), turn * M_PI / 180);
        const gp_Dir up = gp::DZ().Rotated({gp::Origin(), right}, -tilt * M_PI / 180);
        return {right, up, right.Crossed(up), true};
    }
};

} // namespace devcatalog
