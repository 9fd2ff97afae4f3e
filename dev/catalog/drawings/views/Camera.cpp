#include "dev/catalog/drawings/views/Camera.h"

namespace devcatalog
{

namespace
{

Camera orthographic(const Vector3& right, const Vector3& up)
{
    return {right, up, cross(right, up), false};
}

/// A view from the front, turned to show the right side and tilted to show the top; angles in degrees.
Camera axonometric(double turn, double tilt)
{
    const double azimuth = turn * pi / 180;
    const double elevation = tilt * pi / 180;
    const Vector3 toward{std::cos(elevation) * std::sin(azimuth), -std::cos(elevation) * std::cos(azimuth),
                         std::sin(elevation)};
    const Vector3 right{std::cos(azimuth), std::sin(azimuth), 0};
    return {right, cross(toward, right), toward, true};
}

} // namespace

Camera Camera::frontView()
{
    return orthographic(xAxis, zAxis);
}
Camera Camera::topView()
{
    return orthographic(xAxis, yAxis);
}
Camera Camera::rightView()
{
    return orthographic(yAxis, zAxis);
}
Camera Camera::backView()
{
    return orthographic(-xAxis, zAxis);
}
Camera Camera::bottomView()
{
    return orthographic(xAxis, -yAxis);
}
Camera Camera::leftView()
{
    return orthographic(-yAxis, zAxis);
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
