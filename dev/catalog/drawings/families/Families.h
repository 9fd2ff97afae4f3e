#pragma once

#include "dev/catalog/drawings/families/Dimensions.h"
#include "dev/catalog/drawings/solids/Solid.h"

namespace devcatalog
{

/// Builds a part in space from the dimensions of one of its configurations.
/// @throws std::invalid_argument when the family is unknown or a dimension is missing.
Solid buildSolid(std::string_view family, const Configuration& configuration);

// The solids of the families. Each throws std::invalid_argument when a dimension is missing.

// Fasteners, whose axis is x; the head's seat is in the origin.
Solid hexBolt(const Dimensions& given);
Solid socketScrew(const Dimensions& given);
Solid dowelPin(const Dimensions& given);

// Fasteners, whose axis is z; the lower end is in the origin.
Solid hexNut(const Dimensions& given);
Solid washer(const Dimensions& given);
Solid starKnob(const Dimensions& given);

// Drive parts, whose axis is y, so that the front view shows the face; its middle is in the origin.
Solid ballBearing(const Dimensions& given);
Solid spurGear(const Dimensions& given);
Solid beltPulley(const Dimensions& given);

/// Shaft along y; the origin is in the middle of the foot.
Solid pillowBlock(const Dimensions& given);

/// Axis along z; the lower end is in the origin.
Solid compressionSpring(const Dimensions& given);

/// Legs along x and z, from the corner in the origin; width along y.
Solid angleBracket(const Dimensions& given);

/// Length along x.
Solid aluminiumProfile(const Dimensions& given);

/// Axis along y, so that the front view shows the face; the origin is in the middle of the back.
Solid pipeFlange(const Dimensions& given);

/// Grip along x, feet in the xy plane.
Solid bridgeHandle(const Dimensions& given);

/// A box on the xy plane.
Solid enclosure(const Dimensions& given);

/// Axis along x; the back of the rear cover is in the origin, the rod on the right.
Solid pneumaticCylinder(const Dimensions& given);

/// Axis along x; the sensing face is on the right, the cable on the left; the barrel begins in the origin.
Solid proximitySensor(const Dimensions& given);

/// Axis along x; the mounting face is in the origin, the shaft on the right.
Solid stepperMotor(const Dimensions& given);

} // namespace devcatalog
