#include "dev/catalog/drawings/solids/Thread.h"

#include <algorithm>
#include <cmath>

namespace devcatalog
{

namespace
{

constexpr int mostTurns = 24;

} // namespace

Thread::Thread(const Frame& frame, Kind kind, double diameter, double pitch, double length)
    : m_frame(frame),
      m_kind(kind),
      m_radius(diameter / 2),
      m_minorRadius(minorDiameter(diameter, pitch) / 2),
      m_pitch(pitch),
      m_length(length)
{
}

void Thread::appendCurves(std::vector<Curve>& curves, const Vector3& toward) const
{
    const double along = std::abs(dot(toward, m_frame.z));
    if (m_kind == Kind::Internal) {
        // Three quarters of a circle on the faces, where they show.
        for (const double z : {0.0, m_length}) {
            ArcCurve arc = circleAround(m_frame, m_radius, z);
            arc.from = pi / 12;
            arc.to = arc.from + 1.5 * pi;
            if (along > 1e-9)
                curves.emplace_back(arc);
        }
    } else {
        curves.emplace_back(circleAround(m_frame, m_radius, 0));
    }
    if (along < 1e-9)
        appendRootLines(curves, toward);
    else if (m_kind == Kind::External && along < 1 - 1e-9)
        appendTurns(curves);
}

/// Lines along the thread, as far apart as its root; an internal thread's are as far apart as its larger
/// diameter.
void Thread::appendRootLines(std::vector<Curve>& curves, const Vector3& toward) const
{
    const double viewAngle = std::atan2(dot(toward, m_frame.y), dot(toward, m_frame.x));
    // On the side of the shank that faces the viewer, so that the shank does not hide them.
    const double offset = m_kind == Kind::External ? std::asin(m_minorRadius / m_radius) : pi / 2;
    for (const double angle : {viewAngle + offset, viewAngle - offset})
        curves.emplace_back(
            LineCurve{m_frame.polar(m_radius, angle, 0), m_frame.polar(m_radius, angle, m_length)});
}

/// In pictorial views rings suggest the turns.
void Thread::appendTurns(std::vector<Curve>& curves) const
{
    const double count = std::min<double>(mostTurns, std::floor(m_length / m_pitch));
    for (int i = 1; i < count; ++i)
        curves.emplace_back(circleAround(m_frame, m_radius, i * m_length / count));
}

void Thread::appendFaces(std::vector<Face>&, const Vector3&) const
{
}

} // namespace devcatalog
