#include "dev/catalog/drawings/solids/Coil.h"

#include <algorithm>
#include <cmath>

namespace devcatalog
{

namespace
{

constexpr int stepsPerTurn = 144;

/// How much of the full pitch a place has, from none in the end turns to all of it within.
double openness(double turn, double turns)
{
    const double fromEnd = std::clamp((std::min(turn, turns - turn) - 0.6) / 0.8, 0.0, 1.0);
    return fromEnd * fromEnd * (3 - 2 * fromEnd);
}

Curve centreLine(const Frame& frame, double meanDiameter, double wireDiameter, double turns, double height)
{
    const int steps = static_cast<int>(std::lround(turns * stepsPerTurn));
    const double step = turns / steps;
    double open = 0;
    for (int i = 0; i < steps; ++i)
        open += openness((i + 0.5) * step, turns) * step;
    // The closed turns lie on one another; what is left of the height is shared by the open ones.
    const double extraPitch = (height - wireDiameter - turns * wireDiameter) / open;
    PathCurve path;
    double z = wireDiameter / 2;
    for (int i = 0; i <= steps; ++i) {
        path.points.push_back(frame.polar(meanDiameter / 2, 2 * pi * i * step, z));
        z += (wireDiameter + extraPitch * openness((i + 0.5) * step, turns)) * step;
    }
    return path;
}

} // namespace

Coil::Coil(const Frame& frame, double meanDiameter, double wireDiameter, double turns, double height)
    : m_frame(frame),
      m_meanRadius(meanDiameter / 2),
      m_wireRadius(wireDiameter / 2),
      m_height(height),
      m_wire({centreLine(frame, meanDiameter, wireDiameter, turns, height)}, wireDiameter / 2)
{
}

void Coil::appendCurves(std::vector<Curve>& curves, const Vector3& toward) const
{
    const double along = dot(toward, m_frame.z);
    if (std::abs(along) < 1 - 1e-9) {
        m_wire.appendCurves(curves, toward);
        return;
    }
    // End on, all turns cover one another.
    for (const double radius : {m_meanRadius + m_wireRadius, m_meanRadius - m_wireRadius})
        curves.emplace_back(circleAround(m_frame, radius, along > 0 ? m_height : 0));
}

void Coil::appendFaces(std::vector<Face>& faces, const Vector3& toward) const
{
    m_wire.appendFaces(faces, toward);
}

} // namespace devcatalog
