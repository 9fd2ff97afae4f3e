#pragma once

#include "dev/dwg/Object.h"

#include <string>

namespace dwg
{

/// The parts of a file that know no addresses.
struct FileParts {
    /// Data of the HEADER and CLASSES sections.
    std::string headerVariables;
    std::string classes;
    Records records;
    Handle firstUnusedHandle = 0;
};

/// Lays out a DWG file: header, sections, objects and the map that tells where each object is.
/// @return the file's bytes.
std::string layOutDwgFile(const FileParts& parts);

} // namespace dwg
