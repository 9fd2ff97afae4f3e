#pragma once

#include "devcatalog/drawings/BitWriter.h"

namespace devcatalog
{

/// Writes the dimension variables from DIMPOST to DIMATFIT with their usual values. The header variables and
/// the dimension style "Standard" hold the same ones.
void writeDimensionVariables(BitWriter& data);

} // namespace devcatalog
