#include "dev/catalog/drawings/views/ViewDrawing.h"

#include "dev/catalog/drawings/solids/Shapes.h"
#include "dev/catalog/drawings/views/ViewLines.h"

namespace devcatalog
{

namespace
{

/// From the end, all turns cover one another.
void addCoil(LineWork& lineWork, const Coil& coil, const Camera& camera)
{
    if (camera.seesEndOn(gp::DZ())) {
        for (const double radius : {coil.meanRadius + coil.wireRadius, coil.meanRadius - coil.wireRadius})
            lineWork.addCircle(dwg::LineKind::Outline, gp_Circ(gp_Ax2(), radius), 0, 2 * Pi);
        return;
    }
    for (const std::vector<gp_Pnt>& line : visibleOutlines(coil, camera.toward))
        lineWork.addPath(dwg::LineKind::Outline, line);
}

} // namespace

std::vector<dwg::Entity> drawView(const Solid& solid, const Camera& camera)
{
    LineWork lineWork(camera);
    Sight sight(solid, camera);
    addEdgeLines(lineWork, solid, camera, sight);
    if (solid.coil)
        addCoil(lineWork, *solid.coil, camera);
    addThreadLines(lineWork, solid, camera, sight);
    if (!camera.pictorial)
        addCentreLines(lineWork, solid, camera);
    return lineWork.entities();
}

} // namespace devcatalog
