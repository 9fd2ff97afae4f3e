#pragma once

#include "dev/catalog/drawings/solids/Solid.h"
#include "dev/catalog/drawings/views/LineWork.h"
#include "dev/catalog/drawings/views/Sight.h"

namespace devcatalog
{

/// Adds threads in the way of ISO 6410: from the side thin lines at the root and a thick one where the thread
/// ends, from the end three quarters of a thin circle. In pictorial views thin rings stand for the turns.
void addThreadLines(LineWork& lineWork, const Solid& solid, const Camera& camera, Sight& sight);

} // namespace devcatalog
