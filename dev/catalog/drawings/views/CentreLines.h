#pragma once

#include "dev/catalog/drawings/solids/Solid.h"
#include "dev/catalog/drawings/views/LineWork.h"

namespace devcatalog
{

/// Adds the centre lines of axes and of circles around them, which reach 2.5 mm beyond the edges.
void addCentreLines(LineWork& lineWork, const Solid& solid, const Camera& camera);

} // namespace devcatalog
