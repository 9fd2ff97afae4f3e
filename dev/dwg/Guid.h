#pragma once

#include <string>
#include <string_view>

namespace dwg
{

/// Makes a GUID from some content, "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}": equal content gives equal GUIDs.
std::string makeDwgGuid(std::string_view content);

} // namespace dwg
