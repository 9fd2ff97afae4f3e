#pragma once

#include "dev/host/model/PlacedBlocks.h"
#include "dev/host/window/ViewTransform.h"

namespace devhost
{

/// @param box in pixels.
/// @return the foremost block that has a line through the box; null when none has.
std::shared_ptr<HostBlockInstance> blockIn(const PlacedBlocks& drawing, const ViewTransform& view,
                                           const QRectF& box);

} // namespace devhost
