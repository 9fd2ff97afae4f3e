#pragma once

#include "dev/catalog/drawings/solids/Shapes.h"

namespace devcatalog
{

/// The outline of a spur gear with the basic rack of ISO 53, profile A: pressure angle 20 degrees, root 1.25
/// and fillet 0.38 modules. Arcs stand for the involutes, which they keep to within a hundredth of the
/// module. A tooth is at the top.
/// @param module pitch diameter divided by the number of teeth, in millimetres.
Outline toothOutline(double module, int teeth);

} // namespace devcatalog
