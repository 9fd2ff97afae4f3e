#pragma once

#include "dev/catalog/drawings/solids/Solid.h"
#include "dev/catalog/drawings/views/LineWork.h"
#include "dev/catalog/drawings/views/Sight.h"

namespace devcatalog
{

/// Adds the bodies' edges and the outlines of their curved surfaces, hidden ones too unless the view is
/// pictorial. Seams of closed surfaces and edges where surfaces share a tangent are left out.
/// @throws Standard_Failure when the kernel fails.
void addEdgeLines(LineWork& lineWork, const Solid& solid, const Camera& camera, Sight& sight);

} // namespace devcatalog
