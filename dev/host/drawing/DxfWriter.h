#pragma once

#include "dev/host/model/PlacedBlocks.h"

#include <QByteArray>

namespace devhost
{

/// Writes the lines of a drawing as a DXF file through GDAL's DXF driver, with colours, linetypes and the
/// drawing's unit (INSUNITS). Blocks are dissolved into their lines, on one layer for each linetype.
/// @return the file's bytes; none when the library cannot write them.
QByteArray writeDxf(const PlacedBlocks& drawing);

} // namespace devhost
