#pragma once

#include "dev/host/model/BlockPrompt.h"

#include <QTransform>

namespace devhost
{

/// @return what leads from a block's own coordinates to those of the drawing that it is placed in.
QTransform blockTransform(const BlockPlacement& placement);

} // namespace devhost
