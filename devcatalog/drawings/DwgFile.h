#pragma once

#include "devcatalog/drawings/DwgObject.h"

#include <string>

namespace devcatalog
{

/// The parts of a file that know no addresses.
struct DwgFileParts {
    /// Data of the HEADER and CLASSES sections.
    std::string headerVariables;
    std::string classes;
    DwgRecords records;
    DwgHandle firstUnusedHandle = 0;
};

/// Lays out a DWG file: header, sections, objects and the map that tells where each object is.
/// @return the file's bytes.
std::string layOutDwgFile(const DwgFileParts& parts);

} // namespace devcatalog
