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

/// Adds threads in the way of ISO 6410: from the side thin lines at the root and a thick one where the thread
/// ends, from the end three quarters of a thin circle. In pictorial views thin rings stand for the turns.
void addThreadLines(LineWork& lineWork, const Solid& solid, const Camera& camera, Sight& sight);

/// Adds the centre lines of axes and of circles around them, which reach 2.5 mm beyond the edges.
void addCentreLines(LineWork& lineWork, const Solid& solid, const Camera& camera);

} // namespace devcatalog
