#pragma once

#include "dev/dwg/Drawing.h"

namespace dwg
{

/// Checks that a drawing can become a file that CAD programs take.
/// @throws std::invalid_argument naming entity and fault: a coordinate, radius or bulge that is not finite or
/// too large, a radius that is not positive, a polyline of less than 2 or more than 1000 vertices, more than
/// a million points in all.
void checkDrawing(const Drawing& drawing);

} // namespace dwg
