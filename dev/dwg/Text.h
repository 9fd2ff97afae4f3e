#pragma once

#include <string>
#include <string_view>

namespace dwg
{

/// The number under which a DWG file names its code page, Windows-1252.
constexpr unsigned CodePage = 30;

/// Converts UTF-8 to the code page of the DWG files we write.
/// @param replacement stands in for what the code page lacks: other characters, control characters, broken
/// UTF-8.
std::string toWindows1252(std::string_view utf8, char replacement);

} // namespace dwg
