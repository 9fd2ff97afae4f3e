#pragma once

#include "devcatalog/drawings/Drawing.h"

#include <string>

namespace devcatalog
{

/// Writes a drawing as a DWG file of release AC1015 (R2000 to R2002), units centimetres.
/// Equal drawings give equal bytes.
/// @return the file's bytes.
/// @throws std::invalid_argument when a coordinate is not finite or a layer name is not allowed.
std::string writeDwg(const Drawing& drawing);

} // namespace devcatalog
