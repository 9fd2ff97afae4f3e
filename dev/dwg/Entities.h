#pragma once

#include "dev/dwg/Document.h"
#include "dev/dwg/Drawing.h"
#include "dev/dwg/Object.h"

namespace dwg
{

/// The two spaces of a drawing, by their number in an entity.
enum class Space { Paper = 1, Model = 2 };

/// Where an entity lies, and how it hangs in the chain of its space's entities.
struct EntityPlace {
    Handle handle = 0;
    Handle layer = 0;
    Space space = Space::Model;
    double linetypeScale = 1.0;
    /// True when the entities before and after have the handles before and after: the file then leaves them
    /// out.
    bool betweenNeighbours = false;
    /// Else the entities before and after, or none.
    Handle previous = handles::None;
    Handle next = handles::None;
};

/// Begins an entity; colour, linetype and width are the layer's.
Object beginEntity(ObjectType type, const EntityPlace& place);

/// Writes a shape: LINE, CIRCLE or LWPOLYLINE.
Object shapeEntity(const Shape& shape, const EntityPlace& place);

/// The same line with no arc from its last vertex back to its first.
Polyline withoutClosingArc(Polyline polyline);

/// Writes all entities of the drawing, chained in their order.
void addEntities(Records& records, const Document& document);

} // namespace dwg
