#include "dev/dwg/Document.h"

#include "dev/dwg/DrawingCheck.h"
#include "dev/dwg/Text.h"

namespace dwg
{

namespace
{

constexpr std::size_t LongestText = 255;

/// Outlines in the foreground colour, hidden edges in grey, centre lines in red; their widths (the format's
/// numbers of 0.50, 0.35 and 0.25 mm) are those of a mechanical drawing of line group 0.5.
std::array<Layer, 3> makeLayers()
{
    const Handle first = handles::FirstLayer;
    return {{{first, "Outline", 7, 11, handles::LinetypeContinuous},
             {first + 1, "Hidden", 253, 9, handles::LinetypeHidden},
             {first + 2, "Centre", 1, 7, handles::LinetypeCenter}}};
}

} // namespace

Document makeDwgDocument(const Drawing& drawing)
{
    checkDrawing(drawing);
    Document document;
    document.title = toWindows1252(drawing.title, '?').substr(0, LongestText);
    document.layers = makeLayers();
    document.entities = drawing.entities;
    document.extents = extentsOf(drawing.entities);
    document.firstEntity = document.layers.back().handle + 1;
    return document;
}

} // namespace dwg
