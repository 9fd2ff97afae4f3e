#pragma once

#include "dev/catalog/drawings/solids/Solid.h"
#include "dev/catalog/drawings/views/Camera.h"
#include "dev/dwg/Drawing.h"

#include <vector>

namespace devcatalog
{

/// @return one view of a solid, in millimetres: outlines, hidden edges and centre lines; of a pictorial view
/// outlines only.
std::vector<dwg::Entity> drawView(const Solid& solid, const Camera& camera);

} // namespace devcatalog
