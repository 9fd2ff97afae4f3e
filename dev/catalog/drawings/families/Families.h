#pragma once

#include "dev/catalog/drawings/solids/Solid.h"
#include "dev/catalog/parts/Dimensions.h"

namespace devcatalog
{

/// Builds a part in space from the dimensions of one of its configurations.
/// @throws std::invalid_argument when the family is unknown or a dimension is missing.
Solid buildSolid(std::string_view family, const Configuration& configuration);

// What the families add to an empty solid. Each throws std::invalid_argument when a dimension is missing.

// Fasteners, whose axis is x; the head's seat is in the origin.
void hexBolt(Solid& solid, const Dimensions& given);
void socketScrew(Solid& solid, const Dimensions& given);
void dowelPin(Solid& solid, const Dimensions& given);

// Fasteners, whose axis is z; the lower end is in the origin.
void hexNut(Solid& solid, const Dimensions& given);
void washer(Solid& solid, const Dimensions& given);
void starKnob(Solid& solid, const Dimensions& given);

// Drive parts, whose axis is y, so that the front view shows the face; its middle is in the origin.
void ballBearing(Solid& solid, const Dimensions& given);
void spurGear(Solid& solid, const Dimensions& given);
void beltPulley(Solid& solid, const Dimensions& given);

/// Shaft along y; the origin is in the middle of the foot.
void pillowBlock(Solid& solid, const Dimensions& given);

/// Axis along z; the lower end is in the origin.
void compressionSpring(Solid& solid, const Dimensions& given);

/// Legs along x and z, from the corner in the origin; width along y.
void angleBracket(Solid& solid, const Dimensions& given);

/// Length along x.
void aluminiumProfile(Solid& solid, const Dimensions& given);

/// Axis along y, so that the front view shows the face; the origin is in the middle of the back.
void pipeFlange(Solid& solid, const Dimensions& given);

/// Grip along x, feet in the xy plane.
void bridgeHandle(Solid& solid, const Dimensions& given);

/// A box on the xy plane.
void enclosure(Solid& solid, const Dimensions& given);

/// Axis along x; the back of the rear cover is in the origin, the rod on the right.
void pneumaticCylinder(Solid& solid, const Dimensions& given);

/// Axis along x; the sensing face is on the right, the cable on the left; the barrel begins in the origin.
void proximitySensor(Solid& solid, const Dimensions& given);

/// Axis along x; the mounting face is in the origin, the shaft on the right.
void stepperMotor(Solid& solid, const Dimensions& given);

} // namespace devcatalog
