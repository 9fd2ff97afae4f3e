#pragma once

#include "dev/dwg/Document.h"

#include <string>
#include <string_view>

namespace dwg
{

/// The header variables of a drawing, the data of the file's HEADER section.
/// @param content what the file's two GUIDs are made from: equal content gives equal ones.
std::string makeHeaderVariables(const Document& document, std::string_view content);

} // namespace dwg
