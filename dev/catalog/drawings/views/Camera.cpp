#include "dev/catalog/drawings/views/Camera.h"

#include <gp.hxx>
#include <gp_Vec.hxx>

#include <cmath>

namespace devcatalog
{

namespace
{

Camera orthographic(const gp_Dir& right, const gp_Dir& up)
{
    return {right, up, right.Crossed(up), false};
}

/// A view from the front, turned to show the right side and tilted to show the top; angles in degrees.
Camera axonometric(double turn, double tilt)
{
    constexpr double radians = 3.14159265358979323846 / 180;
    const double azimuth = turn * radians;
    const double elevation = tilt * radians;
    const gp_Dir toward(std::cos(elevation) * std::sin(azimuth), -std::cos(elevation) * std::cos(azimuth),
                        std::sin(elevation));
    const gp_Dir right(std::cos(azimuth), std::sin(azimuth), 0);
    return {right, toward.Crossed(right), toward, true};
}

} // namespace

dwg::Point2 Camera::project(const gp_Pnt& point) const
{
    return {point.XYZ().Dot(right.XYZ()), point.XYZ().Dot(up.XYZ())};
}

double Camera::depth(const gp_Pnt& point) const
{
    return point.XYZ().Dot(toward.XYZ());
}

Camera Camera::frontView()
{
    return orthographic(gp::DX(), gp::DZ());
}
Camera Camera::topView()
{
    return orthographic(gp::DX(), gp::DY());
}
Camera Camera::rightView()
{
    return orthographic(gp::DY(), gp::DZ());
}
Camera Camera::backView()
{
    return orthographic(-gp::DX(), gp::DZ());
}
Camera Camera::bottomView()
{
    return orthographic(gp::DX(), -gp::DY());
}
Camera Camera::leftView()
{
    return orthographic(-gp::DY(), gp::DZ());
}

// The angles at which all three axes, or two of them, are shortened alike; the dimetric one draws depth at
// half size.
Camera Camera::isometricView()
{
    return axonometric(45, 35.26438968);
}
Camera Camera::dimetricView()
{
    return axonometric(20.70481105, 19.47122063);
}
Camera Camera::trimetricView()
{
    return axonometric(30, 25);
}

} // namespace devcatalog
