#pragma once

#include "dev/catalog/drawings/solids/Solid.h"
#include "dev/catalog/drawings/views/LineWork.h"

namespace devcatalog
{

/// Draws the axes and pitch circles of a solid as a camera sees them.
/// @param size the part's largest extent; it decides how far the lines reach beyond what they belong to.
void addCentreLines(LineWork& lineWork, const Solid& solid, const Camera& camera, double size);

} // namespace devcatalog
