#pragma once

#include "dev/dwg/BitWriter.h"

namespace dwg
{

/// Writes the dimension variables from DIMPOST to DIMATFIT with their usual values. The header variables and
/// the dimension style "Standard" hold the same ones.
void writeDimensionVariables(BitWriter& data);

} // namespace dwg
