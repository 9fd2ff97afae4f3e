#pragma once

#include "dev/catalog/drawings/families/Dimensions.h"
#include "dev/catalog/drawings/solids/Solid.h"

namespace devcatalog
{

// Each throws std::invalid_argument when a dimension is missing. Their axes lie along x.

/// The back of the rear cover is in the origin, the rod on the right.
Solid pneumaticCylinder(const Dimensions& dimensions);

/// The sensing face is on the right, the cable on the left; the barrel begins in the origin.
Solid proximitySensor(const Dimensions& dimensions);

/// The mounting face is in the origin, the shaft on the right.
Solid stepperMotor(const Dimensions& dimensions);

} // namespace devcatalog
