#pragma once

#include "dev/catalog/drawings/solids/Solid.h"
#include "dev/catalog/parts/Part.h"

#include <string_view>

namespace devcatalog
{

/// Builds a part in space from the dimensions of one of its configurations.
/// @throws std::invalid_argument when the family is unknown or a dimension is missing.
Solid buildSolid(std::string_view family, const Configuration& configuration);

} // namespace devcatalog
