#include "dev/catalog/drawings/views/CentreLines.h"

namespace devcatalog
{

namespace
{

void addLine(LineWork& lineWork, const Vector3& from, const Vector3& to, double overhang)
{
    const Vector3 beyond = overhang * normalized(to - from);
    lineWork.add(dwg::LineKind::Centre, LineCurve{from - beyond, to + beyond});
}

void addAxis(LineWork& lineWork, const Axis& axis, const Camera& camera, double overhang)
{
    const Vector3 direction = axis.to - axis.from;
    if (length(cross(direction, camera.toward)) > 1e-9) {
        addLine(lineWork, axis.from, axis.to, overhang);
        return;
    }
    for (const Vector3& arm : {axis.radius * camera.right, axis.radius * camera.up})
        addLine(lineWork, axis.from - arm, axis.from + arm, overhang);
}

void addPitchCircle(LineWork& lineWork, const PitchCircle& pitch, const Camera& camera, double overhang)
{
    const double facing = std::abs(dot(pitch.frame.z, camera.toward));
    if (facing > 1 - 1e-9) {
        lineWork.add(dwg::LineKind::Centre, circleAround(pitch.frame, pitch.radius, 0));
    } else if (facing < 1e-9 && pitch.length > 0) {
        const Vector3 along = pitch.length * pitch.frame.z;
        const Vector3 across = pitch.radius * cross(pitch.frame.z, camera.toward);
        for (const Vector3& start : {pitch.frame.origin + across, pitch.frame.origin - across})
            addLine(lineWork, start, start + along, overhang);
    }
}

} // namespace

void addCentreLines(LineWork& lineWork, const Solid& solid, const Camera& camera, double size)
{
    const double least = 0.02 * size;
    for (const Axis& axis : solid.axes)
        addAxis(lineWork, axis, camera, std::max(least, 0.2 * axis.radius));
    for (const PitchCircle& pitch : solid.pitchCircles)
        addPitchCircle(lineWork, pitch, camera, least);
}

} // namespace devcatalog
