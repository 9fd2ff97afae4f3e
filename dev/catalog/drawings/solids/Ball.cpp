#include "dev/catalog/drawings/solids/Ball.h"

namespace devcatalog
{

namespace
{

constexpr int meridians = 24;
constexpr int parallels = 12;

} // namespace

Ball::Ball(const Vector3& centre, double radius) : m_centre(centre), m_radius(radius)
{
}

/// From wherever it is seen, a ball's outline is a circle across the line of sight.
void Ball::appendCurves(std::vector<Curve>& curves, const Vector3& toward) const
{
    const Vector3 u = normalized(cross(toward, std::abs(toward.z) < 0.9 ? zAxis : xAxis));
    curves.emplace_back(circleAround(Frame::at(m_centre, toward, u), m_radius, 0));
}

void Ball::appendFaces(std::vector<Face>& faces, const Vector3&) const
{
    const auto corner = [this](int meridian, int parallel) {
        const double azimuth = 2 * pi * meridian / meridians;
        const double elevation = pi * parallel / parallels - pi / 2;
        return m_centre + m_radius * Vector3{std::cos(elevation) * std::cos(azimuth),
                                             std::cos(elevation) * std::sin(azimuth), std::sin(elevation)};
    };
    for (int parallel = 0; parallel < parallels; ++parallel)
        for (int meridian = 0; meridian < meridians; ++meridian)
            faces.push_back(quadrangle(corner(meridian, parallel), corner(meridian + 1, parallel),
                                       corner(meridian + 1, parallel + 1), corner(meridian, parallel + 1)));
}

} // namespace devcatalog
