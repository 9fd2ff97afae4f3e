#pragma once

#include "dev/catalog/drawings/families/Dimensions.h"
#include "dev/catalog/drawings/solids/Solid.h"

namespace devcatalog
{

// Each throws std::invalid_argument when a dimension is missing.

/// Axis along x; the head's seat is in the origin.
Solid hexBolt(const Dimensions& dimensions);
Solid socketScrew(const Dimensions& dimensions);
Solid dowelPin(const Dimensions& dimensions);

/// Axis along z; the lower end is in the origin.
Solid hexNut(const Dimensions& dimensions);
Solid washer(const Dimensions& dimensions);
Solid starKnob(const Dimensions& dimensions);

} // namespace devcatalog
