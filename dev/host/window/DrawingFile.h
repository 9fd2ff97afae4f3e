#pragma once

#include "dev/host/model/PlacedBlocks.h"

#include <QString>

namespace devhost
{

/// Saves a copy of the drawing. The file is there as a whole, or not at all.
/// @param path ends in .dxf or .svg, which says what it is to be.
/// @return one sentence when it cannot be saved; else empty.
QString saveDrawing(const PlacedBlocks& drawing, const QString& path);

} // namespace devhost
