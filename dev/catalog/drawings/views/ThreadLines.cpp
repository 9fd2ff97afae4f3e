#include "dev/catalog/drawings/views/ViewLines.h"

#include "dev/catalog/drawings/solids/Shapes.h"

#include <ElCLib.hxx>

#include <algorithm>
#include <cmath>

namespace devcatalog
{

namespace
{

constexpr int MostRings = 16;
constexpr int Steps = 36;                  ///< Places to look at on each line and whole circle.
constexpr double QuarterLeftOut = Pi / 12; ///< Where the circle of a thread's end begins, in radians.

/// What draws the threads of one view.
struct ThreadLines {
    LineWork& lineWork;
    const Camera& camera;
    Sight& sight;

    void add(const Thread& thread) const
    {
        if (camera.seesFromTheSide(thread.frame.Direction()))
            addFromTheSide(thread);
        else if (thread.internal || camera.seesEndOn(thread.frame.Direction()))
            addEnd(thread);
        else
            addRings(thread);
    }

    /// @param toSight from the line to where it would be seen.
    void addLine(dwg::LineKind kind, const gp_Pnt& from, const gp_Pnt& to, const gp_Vec& toSight) const
    {
        const auto place = [&](double at) { return from.Translated(at * gp_Vec(from, to)); };
        const auto seen = [&](double at) { return place(at).Translated(toSight); };
        for (const Sight::Piece& piece : sight.split(0, 1, seen, Steps))
            lineWork.addLine(piece.visible ? kind : dwg::LineKind::Hidden, place(piece.from),
                             place(piece.to));
    }

    void addCircle(const gp_Circ& circle, double from, double to) const
    {
        const auto place = [&](double at) { return ElCLib::Value(at, circle); };
        const int steps = static_cast<int>(std::lround(Steps * (to - from) / (2 * Pi)));
        for (const Sight::Piece& piece : sight.split(from, to, place, steps))
            if (piece.visible || !camera.pictorial)
                lineWork.addCircle(piece.visible ? dwg::LineKind::Thread : dwg::LineKind::Hidden, circle,
                                   piece.from, piece.to);
    }

    void addFromTheSide(const Thread& thread) const
    {
        const gp_Vec across(thread.frame.Direction().Crossed(camera.toward));
        // The surface of a shank, in front of its axis, is where its lines are seen.
        const gp_Vec toSight = (thread.internal ? 0 : thread.radius) * gp_Vec(camera.toward);
        const gp_Vec side = thread.lineRadius() * across;
        const gp_Pnt start = thread.frame.Location();
        const gp_Pnt end = raised(thread.frame, thread.length).Location();
        addLine(dwg::LineKind::Thread, start.Translated(side), end.Translated(side), toSight);
        addLine(dwg::LineKind::Thread, start.Translated(-side), end.Translated(-side), toSight);
        const gp_Vec limit = thread.radius * across;
        const gp_Pnt& limited = thread.internal ? end : start;
        addLine(dwg::LineKind::Outline, limited.Translated(-limit), limited.Translated(limit), toSight);
    }

    /// The end toward the viewer.
    void addEnd(const Thread& thread) const
    {
        const bool far = thread.frame.Direction().Dot(camera.toward) > 0;
        const gp_Ax2 frame = raised(thread.frame, far ? thread.length : 0);
        addCircle(gp_Circ(frame, thread.lineRadius()), QuarterLeftOut, QuarterLeftOut + 1.5 * Pi);
    }

    void addRings(const Thread& thread) const
    {
        const double threaded = thread.length - (thread.radius - thread.coreRadius);
        const int count = std::min(MostRings, static_cast<int>(threaded / thread.pitch));
        for (int i = 0; i < count; ++i) {
            const gp_Circ ring(raised(thread.frame, i * threaded / count), thread.radius);
            // The shank itself hides the half that is turned away.
            const double front = ElCLib::Parameter(ring, ring.Location().Translated(camera.toward));
            addCircle(ring, front - Pi / 2, front + Pi / 2);
        }
    }
};

} // namespace

void addThreadLines(LineWork& lineWork, const Solid& solid, const Camera& camera, Sight& sight)
{
    for (const Thread& thread : solid.threads)
        ThreadLines{lineWork, camera, sight}.add(thread);
}

} // namespace devcatalog
