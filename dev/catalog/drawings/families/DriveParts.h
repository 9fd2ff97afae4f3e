#pragma once

#include "dev/catalog/drawings/families/Dimensions.h"
#include "dev/catalog/drawings/solids/Solid.h"

namespace devcatalog
{

// Each throws std::invalid_argument when a dimension is missing.

/// Axis along y, so that the front view shows the face; the origin is in the middle of the face.
Solid ballBearing(const Dimensions& dimensions);
Solid spurGear(const Dimensions& dimensions);
Solid beltPulley(const Dimensions& dimensions);

/// Shaft along y; the origin is in the middle of the foot.
Solid pillowBlock(const Dimensions& dimensions);

/// Axis along z; the lower end is in the origin.
Solid compressionSpring(const Dimensions& dimensions);

} // namespace devcatalog
