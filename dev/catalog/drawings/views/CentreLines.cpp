#include "dev/catalog/drawings/views/ViewLines.h"

#include "dev/catalog/drawings/solids/Shapes.h"

namespace devcatalog
{

namespace
{

constexpr double Overhang = 2.5;

void addLine(LineWork& lineWork, const gp_Pnt& from, const gp_Pnt& to)
{
    const gp_Vec beyond = Overhang * gp_Vec(from, to).Normalized();
    lineWork.addLine(dwg::LineKind::Centre, from.Translated(-beyond), to.Translated(beyond));
}

void addAxis(LineWork& lineWork, const Axis& axis, const Camera& camera)
{
    if (!camera.seesEndOn(gp_Vec(axis.from, axis.to))) {
        addLine(lineWork, axis.from, axis.to);
        return;
    }
    for (const gp_Dir& direction : {camera.right, camera.up}) {
        const gp_Vec arm = axis.radius * gp_Vec(direction);
        addLine(lineWork, axis.from.Translated(-arm), axis.from.Translated(arm));
    }
}

void addPitchCircle(LineWork& lineWork, const PitchCircle& pitch, const Camera& camera)
{
    const gp_Dir axis = pitch.frame.Direction();
    if (camera.seesEndOn(axis)) {
        lineWork.addCircle(dwg::LineKind::Centre, gp_Circ(pitch.frame, pitch.radius), 0, 2 * Pi);
    } else if (pitch.length > 0) {
        const gp_Vec across = pitch.radius * gp_Vec(axis.Crossed(camera.toward));
        for (const gp_Vec& side : {across, -across}) {
            const gp_Pnt start = pitch.frame.Location().Translated(side);
            addLine(lineWork, start, start.Translated(pitch.length * gp_Vec(axis)));
        }
    }
}

} // namespace

void addCentreLines(LineWork& lineWork, const Solid& solid, const Camera& camera)
{
    for (const Axis& axis : solid.axes)
        addAxis(lineWork, axis, camera);
    for (const PitchCircle& pitch : solid.pitchCircles)
        addPitchCircle(lineWork, pitch, camera);
}

} // namespace devcatalog
