#pragma once

#include <string>

namespace dwg
{

/// The list of object kinds without a fixed number, the data of the file's CLASSES section.
std::string makeDwgClasses();

} // namespace dwg
