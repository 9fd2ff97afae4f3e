#include "devcatalog/drawings/DwgDocument.h"

#include "devcatalog/drawings/DrawingCheck.h"
#include "devcatalog/drawings/DwgText.h"

namespace devcatalog
{

namespace
{

constexpr std::size_t longestText = 255;

/// Outlines in the foreground colour, hidden edges in grey, centre lines in red; their widths (the format's
/// numbers of 0.50, 0.35 and 0.25 mm) are those of a mechanical drawing of line group 0.5.
std::array<DwgLayer, 3> makeLayers()
{
    const DwgHandle first = handles::firstLayer;
    return {{{first, "Outline", 7, 11, handles::linetypeContinuous},
             {first + 1, "Hidden", 253, 9, handles::linetypeHidden},
             {first + 2, "Centre", 1, 7, handles::linetypeCenter}}};
}

} // namespace

DwgDocument makeDwgDocument(const Drawing& drawing)
{
    checkDrawing(drawing);
    DwgDocument document;
    document.title = toWindows1252(drawing.title, '?').substr(0, longestText);
    document.layers = makeLayers();
    document.entities = drawing.entities;
    document.extents = extentsOf(drawing.entities);
    document.firstEntity = document.layers.back().handle + 1;
    return document;
}

} // namespace devcatalog
