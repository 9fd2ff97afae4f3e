#pragma once

#include "dev/host/model/PlacedBlocks.h"

#include <QByteArray>

namespace devhost
{

/// @return the drawing as an SVG picture in the colours of the light theme, 1000 pixels on its longer side.
QByteArray writeSvg(const PlacedBlocks& drawing);

} // namespace devhost
