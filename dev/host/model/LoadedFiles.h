#pragma once

#include <QString>

namespace devhost
{

/// @param file path of a library file. @return whether the process has it loaded.
bool isFileLoaded(const QString& file);

} // namespace devhost
