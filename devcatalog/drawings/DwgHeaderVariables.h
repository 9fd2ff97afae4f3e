#pragma once

#include "devcatalog/drawings/DwgDocument.h"

#include <string>
#include <string_view>

namespace devcatalog
{

/// The header variables of a drawing, the data of the file's HEADER section.
/// @param content what the file's two GUIDs are made from: equal content gives equal ones.
std::string makeHeaderVariables(const DwgDocument& document, std::string_view content);

} // namespace devcatalog
