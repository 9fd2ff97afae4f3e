#include "dev/catalog/drawings/solids/Coil.h"

#include "dev/catalog/drawings/solids/Shapes.h"

#include <ElCLib.hxx>
#include <gp_Ax3.hxx>

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

/// Whether the wire lies in front of a point on its surface. The z axis goes toward the viewer.
bool isCovered(const gp_Pnt& point, const std::vector<gp_Pnt>& centreLine, double wireRadius)
{
    const double square = wireRadius * wireRadius;
    return std::any_of(centreLine.begin(), centreLine.end(), [&](const gp_Pnt& other) {
        const double x = other.X() - point.X();
        const double y = other.Y() - point.Y();
        const double distance = x * x + y * y;
        // A point on an outline is as far from the middle of its own wire as the wire is thick.
        return distance < 0.99 * square && other.Z() + std::sqrt(square - distance) > point.Z() + 1e-6;
    });
}

/// Both outlines along the wire, and the rims of its ends.
std::vector<std::vector<gp_Pnt>> outlines(const Coil& coil, const gp_Dir& toward)
{
    std::vector<std::vector<gp_Pnt>> lines(4);
    for (std::size_t i = 0; i < coil.centreLine.size(); ++i) {
        const gp_Vec across = gp_Vec(coil.direction(i)).Crossed(toward);
        if (across.Magnitude() < 1e-6)
            continue;
        const gp_Vec toSide = coil.wireRadius * across.Normalized();
        lines[0].push_back(coil.centreLine[i].Translated(-toSide));
        lines[1].push_back(coil.centreLine[i].Translated(toSide));
    }
    for (const std::size_t end : {std::size_t(0), coil.centreLine.size() - 1}) {
        const gp_Ax2 rim(coil.centreLine[end], coil.direction(end));
        for (int i = 0; i <= StepsPerTurn / 4; ++i)
            lines[end == 0 ? 2 : 3].push_back(
                ElCLib::CircleValue(8 * Pi * i / StepsPerTurn, rim, coil.wireRadius));
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
        coil.centreLine.push_back(ElCLib::CircleValue(2 * Pi * i * step, raised({}, z), meanRadius));
        z += (2 * wireRadius + extraPitch * openness((i + 0.5) * step, turns)) * step;
    }
    return coil;
}

std::vector<std::vector<gp_Pnt>> visibleOutlines(const Coil& coil, const gp_Dir& toward)
{
    gp_Trsf toViewer;
    toViewer.SetTransformation(gp_Ax3(gp_Pnt(), toward));
    std::vector<gp_Pnt> centreLine = coil.centreLine;
    for (gp_Pnt& point : centreLine)
        point.Transform(toViewer);
    std::vector<std::vector<gp_Pnt>> visible;
    for (const std::vector<gp_Pnt>& line : outlines(coil, toward)) {
        bool before = false;
        for (const gp_Pnt& point : line) {
            const bool now = !isCovered(point.Transformed(toViewer), centreLine, coil.wireRadius);
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
