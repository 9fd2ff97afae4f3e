#include "dev/catalog/drawings/views/ViewDrawing.h"

#include "dev/catalog/drawings/views/CentreLines.h"
#include "dev/catalog/drawings/views/HiddenLines.h"
#include "dev/catalog/drawings/views/LineWork.h"

namespace devcatalog
{

std::vector<dwg::Entity> drawView(const Solid& solid, const Camera& camera)
{
    const StrokeSet strokes = findStrokes(solid, camera);
    LineWork lineWork(camera, 1e-5 * strokes.size);
    for (const Stroke& stroke : strokes.strokes)
        if (!stroke.hidden || !camera.pictorial)
            lineWork.add(stroke.hidden ? dwg::LineKind::Hidden : dwg::LineKind::Outline, stroke.curve);
    if (!camera.pictorial)
        addCentreLines(lineWork, solid, camera, strokes.size);
    return lineWork.entities();
}

} // namespace devcatalog
