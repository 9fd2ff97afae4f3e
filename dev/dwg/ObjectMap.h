#pragma once

#include "dev/dwg/Handle.h"

#include <cstdint>
#include <string>
#include <vector>

namespace dwg
{

struct MapEntry {
    Handle handle = 0;
    /// Offset of the object's record in the file.
    std::uint32_t address = 0;
};

/// Makes the file's object map.
/// @param entries in ascending order of their handles.
std::string makeDwgObjectMap(const std::vector<MapEntry>& entries);

} // namespace dwg
