#pragma once

#include "dev/catalog/drawings/families/Dimensions.h"
#include "dev/catalog/drawings/solids/Solid.h"

namespace devcatalog
{

// Each throws std::invalid_argument when a dimension is missing.

/// Legs along x and z, from the corner in the origin; width along y.
Solid angleBracket(const Dimensions& dimensions);

/// Length along x.
Solid aluminiumProfile(const Dimensions& dimensions);

/// Axis along y, so that the front view shows the face; the origin is in the middle of the back.
Solid pipeFlange(const Dimensions& dimensions);

/// Grip along x, feet in the xy plane.
Solid bridgeHandle(const Dimensions& dimensions);

/// A box on the xy plane.
Solid enclosure(const Dimensions& dimensions);

} // namespace devcatalog
