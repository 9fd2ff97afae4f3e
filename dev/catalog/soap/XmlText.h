#pragma once

#include <string>
#include <string_view>

namespace devcatalog
{

/// Whether the bytes are UTF-8 and hold only characters and references that XML 1.0 allows. The XML library
/// itself takes any bytes, and leaves references that it does not know as they stand.
bool isXmlText(std::string_view text);

/// A name or text from a request, quoted for a fault or a log line: on one line, without bytes that are no
/// text, and no longer than a line bears.
std::string quote(std::string_view text);

} // namespace devcatalog
