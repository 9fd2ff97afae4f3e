#include "dev/catalog/drawings/solids/Coil.h"

#include "dev/catalog/drawings/solids/Shapes.h"

#include <algorithm>
#include <cmath>

namespace devcatalog
{

namespace
{

constexpr int StepsPerTurn = 144;

/// How much of the full pitch a place has, from none in the end turns to all of it within.
double openness(double turn, double turns)
{
    const double fromEnd = std::clamp((std::min(turn, turns - turn) - 0.6) / 0.8, 0.0, 1.0);
    return fromEnd * fromEnd * (3 - 2 * fromEnd);
}

/// Tells what the wire hides.
class WireSight
{
public:
    WireSight(const Coil& coil, const gp_Dir& toward)
        : m_frame(gp_Pnt(), toward), m_squaredRadius(coil.wireRadius * coil.wireRadius)
    {
        for (const gp_Pnt& point : coil.centreLine)
            m_places.push_back(placed(point));
    }

    /// @param point on the wire's surface.
    bool isVisible(const gp_Pnt& point) const
    {
        // A point on an outline is as far from the middle of its own wire as the wire is thick.
        const double radius = 0.99 * m_squaredRadius;
        const gp_Vec place = placed(point);
        return std::none_of(m_places.begin(), m_places.end(), [&](const gp_Vec& other) {
            const double x = other.X() - place.X();
            const double y = other.Y() - place.Y();
            const double distance = x * x + y * y;
            return distance < radius && other.Z() + std::sqrt(m_squaredRadius - distance) > place.Z() + 1e-6;
        });
    }

private:
    gp_Vec placed(const gp_Pnt& point) const
    {
        const gp_Vec vector(m_frame.Location(), point);
        return {vector.Dot(m_frame.XDirection()), vector.Dot(m_frame.YDirection()),
                vector.Dot(m_frame.Direction())};
    }

    gp_Ax2 m_frame;
    double m_squaredRadius;
    std::vector<gp_Vec> m_places;
};

/// Both outlines along the wire, and the rims of its ends.
std::vector<std::vector<gp_Pnt>> outlines(const Coil& coil, const gp_Dir& toward)
{
    std::vector<std::vector<gp_Pnt>> lines(4);
    for (std::size_t i = 0; i < coil.centreLine.size(); ++i) {
        const gp_Vec across = gp_Vec(coil.direction(i)).Crossed(toward);
        if (across.Magnitude() < 1e-6)
            continue;
        for (const int side : {0, 1})
            lines[static_cast<std::size_t>(side)].push_back(
                coil.centreLine[i].Translated((2 * side - 1) * coil.wireRadius * across.Normalized()));
    }
    for (const std::size_t end : {std::size_t(0), coil.centreLine.size() - 1}) {
        const gp_Ax2 rim(coil.centreLine[end], coil.direction(end));
        for (int i = 0; i <= StepsPerTurn / 4; ++i)
            lines[end == 0 ? 2 : 3].push_back(polarPoint(rim, coil.wireRadius, 8 * Pi * i / StepsPerTurn, 0));
    }
    return lines;
}

} // namespace

gp_Dir Coil::direction(std::size_t index) const
{
    const std::size_t last = centreLine.size() - 1;
    return gp_Vec(centreLine[index == 0 ? 0 : index - 1], centreLine[std::min(index + 1, last)]);
}

Coil makeCoil(double meanRadius, double wireRadius, double turns, double height)
{
    const int steps = static_cast<int>(std::lround(turns * StepsPerTurn));
    const double step = turns / steps;
    double open = 0;
    for (int i = 0; i < steps; ++i)
        open += openness((i + 0.5) * step, turns) * step;
    // The closed turns lie on one another; what is left of the height is shared by the open ones.
    const double extraPitch = (height - 2 * wireRadius * (1 + turns)) / open;
    Coil coil{{}, meanRadius, wireRadius};
    double z = wireRadius;
    for (int i = 0; i <= steps; ++i) {
        coil.centreLine.push_back(polarPoint(gp_Ax2(), meanRadius, 2 * Pi * i * step, z));
        z += (2 * wireRadius + extraPitch * openness((i + 0.5) * step, turns)) * step;
    }
    return coil;
}

std::vector<std::vector<gp_Pnt>> visibleOutlines(const Coil& coil, const gp_Dir& toward)
{
    const WireSight sight(coil, toward);
    std::vector<std::vector<gp_Pnt>> visible;
    for (const std::vector<gp_Pnt>& line : outlines(coil, toward)) {
        bool before = false;
        for (const gp_Pnt& point : line) {
            const bool now = sight.isVisible(point);
            if (now && !before)
                visible.emplace_back();
            if (now)
                visible.back().push_back(point);
            before = now;
        }
    }
    return visible;
}

} // namespace devcatalog
