#include "devcatalog/drawings/views/ViewDrawing.h"

#include "devcatalog/drawings/views/CentreLines.h"
#include "devcatalog/drawings/views/HiddenLines.h"
#include "devcatalog/drawings/views/LineWork.h"

namespace devcatalog
{

std::vector<Entity> drawView(const Solid& solid, const Camera& camera)
{
    const StrokeSet strokes = findStrokes(solid, camera);
    LineWork lineWork(camera, 1e-5 * strokes.size);
    for (const Stroke& stroke : strokes.strokes)
        if (!stroke.hidden || !camera.pictorial)
            lineWork.add(stroke.hidden ? LineKind::Hidden : LineKind::Outline, stroke.curve);
    if (!camera.pictorial)
        addCentreLines(lineWork, solid, camera, strokes.size);
    return lineWork.entities();
}

} // namespace devcatalog
