#include "dev/catalog/drawings/views/ThreadLines.h"

#include "dev/catalog/drawings/solids/Shapes.h"

#include <ElCLib.hxx>

#include <algorithm>
#include <cmath>

namespace devcatalog
{

namespace
{

constexpr int MostRings = 16;
constexpr int Steps = 36;                  ///< Places to look at on each line.
constexpr double QuarterLeftOut = Pi / 12; ///< Where the circle of a thread's end begins, in radians.

class ThreadLines
{
public:
    ThreadLines(LineWork& lineWork, const Camera& camera, Sight& sight)
        : m_lineWork(lineWork), m_camera(camera), m_sight(sight)
    {
    }

    void add(const Thread& thread)
    {
        const bool internal = thread.kind == Thread::Kind::Internal;
        if (m_camera.seesFromTheSide(thread.frame.Direction()))
            addFromTheSide(thread);
        else if (internal || m_camera.seesEndOn(thread.frame.Direction()))
            addEnd(thread);
        else
            addRings(thread);
    }

private:
    dwg::LineKind kindOf(bool visible, dwg::LineKind kind) const
    {
        return visible ? kind : dwg::LineKind::Hidden;
    }

    /// @param toSight from the line to where it would be seen.
    void addLine(dwg::LineKind kind, const gp_Pnt& from, const gp_Pnt& to, const gp_Vec& toSight)
    {
        const auto place = [&](double at) { return from.Translated(at * gp_Vec(from, to)); };
        const auto seen = [&](double at) { return place(at).Translated(toSight); };
        for (const Sight::Piece& piece : m_sight.split(0, 1, seen, Steps))
            m_lineWork.addLine(kindOf(piece.visible, kind), place(piece.from), place(piece.to));
    }

    void addCircle(const gp_Circ& circle, double from, double to)
    {
        const auto place = [&](double at) { return ElCLib::Value(at, circle); };
        for (const Sight::Piece& piece : m_sight.split(from, to, place, Steps))
            if (piece.visible || !m_camera.pictorial)
                m_lineWork.addCircle(kindOf(piece.visible, dwg::LineKind::Thread), circle, piece.from,
                                     piece.to);
    }

    void addFromTheSide(const Thread& thread)
    {
        const bool external = thread.kind == Thread::Kind::External;
        const gp_Dir along = thread.frame.Direction();
        const gp_Vec across(along.Crossed(m_camera.toward));
        // The surface of a shank, in front of its axis, is where its lines are seen.
        const gp_Vec toSight = (external ? thread.radius : 0) * gp_Vec(m_camera.toward);
        const double radius = external ? thread.coreRadius : thread.radius;
        const gp_Pnt end = raised(thread.frame, thread.length).Location();
        const gp_Pnt start = thread.frame.Location();
        for (const gp_Vec& side : {radius * across, -radius * across})
            addLine(dwg::LineKind::Thread, start.Translated(side), end.Translated(side), toSight);
        const gp_Vec limit = thread.radius * across;
        const gp_Pnt& limited = external ? start : end;
        addLine(dwg::LineKind::Outline, limited.Translated(-limit), limited.Translated(limit), toSight);
    }

    /// The end toward the viewer.
    void addEnd(const Thread& thread)
    {
        const bool far = thread.frame.Direction().Dot(m_camera.toward) > 0;
        const gp_Ax2 frame = raised(thread.frame, far ? thread.length : 0);
        const bool external = thread.kind == Thread::Kind::External;
        addCircle(gp_Circ(frame, external ? thread.coreRadius : thread.radius), QuarterLeftOut,
                  QuarterLeftOut + 1.5 * Pi);
    }

    void addRings(const Thread& thread)
    {
        const double threaded = thread.length - (thread.radius - thread.coreRadius);
        const int count = std::min(MostRings, static_cast<int>(threaded / thread.pitch));
        for (int i = 0; i < count; ++i)
            addCircle(gp_Circ(raised(thread.frame, i * threaded / count), thread.radius), 0, 2 * Pi);
    }

    LineWork& m_lineWork;
    const Camera& m_camera;
    Sight& m_sight;
};

} // namespace

void addThreadLines(LineWork& lineWork, const Solid& solid, const Camera& camera, Sight& sight)
{
    ThreadLines lines(lineWork, camera, sight);
    for (const Thread& thread : solid.threads)
        lines.add(thread);
}

} // namespace devcatalog
