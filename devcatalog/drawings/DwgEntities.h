#pragma once

#include "devcatalog/drawings/Drawing.h"
#include "devcatalog/drawings/DwgDocument.h"
#include "devcatalog/drawings/DwgObject.h"

namespace devcatalog
{

/// The two spaces of a drawing, by their number in an entity.
enum class DwgSpace { Paper = 1, Model = 2 };

/// Where an entity lies, and how it hangs in the chain of its space's entities.
struct DwgEntityPlace {
    DwgHandle handle = 0;
    DwgHandle layer = 0;
    DwgSpace space = DwgSpace::Model;
    /// True when the entities before and after have the handles before and after: the file then leaves them
    /// out.
    bool betweenNeighbours = false;
    /// Else the entities before and after, or none.
    DwgHandle previous = handles::none;
    DwgHandle next = handles::none;
};

/// Begins an entity; colour, linetype and width are the layer's.
DwgObject beginEntity(DwgObjectType type, const DwgEntityPlace& place);

/// Writes a shape: LINE, CIRCLE or LWPOLYLINE.
DwgObject shapeEntity(const Shape& shape, const DwgEntityPlace& place);

/// The same line with no arc from its last vertex back to its first.
Polyline withoutClosingArc(Polyline polyline);

/// Writes all entities of the drawing, chained in their order.
void addEntities(DwgRecords& records, const DwgDocument& document);

} // namespace devcatalog
