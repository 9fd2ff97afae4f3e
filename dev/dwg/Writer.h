#pragma once

#include "dev/dwg/Drawing.h"

#include <string>

namespace dwg
{

/// Writes a drawing as a DWG file of release AC1015 (R2000 to R2002).
///
/// All entities lie in model space, on one layer for each LineKind, colour, linetype and width by layer,
/// linetype scale by entity, which the drawing keeps where it becomes a block of another. The
/// title becomes the description of model space, cut after 255 characters. Arcs stay polylines with bulges,
/// and a closed polyline never closes with an arc: its first vertex moves, or is repeated, since some readers
/// draw ARC entities wrongly and take a closing arc for straight. Extents, limits and the view follow from
/// the geometry. Equal drawings give equal bytes: dates are fixed and GUIDs come from the content.
///
/// @param drawing within 1e9 units of its origin; a polyline has 2 to 1000 vertices, the whole at most a
/// million points. A drawing without entities gives a valid file.
/// @return the file's bytes.
/// @throws std::invalid_argument naming what is wrong: a coordinate, radius or bulge that is not finite or
/// too large, a radius that is not positive, too few or too many points.
std::string writeDwg(const Drawing& drawing);

} // namespace dwg
