#include "dev/dwg/Document.h"

#include "dev/dwg/DrawingCheck.h"
#include "dev/dwg/Text.h"

namespace dwg
{

namespace
{

constexpr std::size_t LongestText = 255;

/// Outlines in the foreground colour, hidden edges in grey, centre lines in red, threads in green; the
/// outlines are 0.50 mm wide (the format's number 11) and all else 0.25 mm (7), as in a mechanical drawing of
/// line group 0.5.
std::array<Layer, 4> makeLayers()
{
    const Handle first = handles::FirstLayer;
    return {{{first, "Outline", 7, 11, handles::LinetypeContinuous},
             {first + 1, "Hidden", 253, 7, handles::LinetypeHidden},
             {first + 2, "Centre", 1, 7, handles::LinetypeCenter},
             {first + 3, "Thread", 3, 7, handles::LinetypeContinuous}}};
}

/// The format's number of a unit.
int insertionUnitsOf(Unit unit)
{
    return unit == Unit::Millimetre ? 4 : 5;
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
    document.insertionUnits = insertionUnitsOf(drawing.unit);
    document.linetypeScale = drawing.linetypeScale;
    document.firstEntity = document.layers.back().handle + 1;
    return document;
}

} // namespace dwg
