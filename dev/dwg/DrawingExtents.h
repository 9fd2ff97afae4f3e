#pragma once

#include "dev/dwg/Drawing.h"

#include <optional>
#include <vector>

namespace dwg
{

/// The smallest upright rectangle around some geometry, in centimetres.
struct Extents {
    Point2 min;
    Point2 max;

    double width() const { return max.x - min.x; }
    double height() const { return max.y - min.y; }
    Point2 centre() const { return {(min.x + max.x) / 2.0, (min.y + max.y) / 2.0}; }
};

/// The exact extents, arcs of polylines included; nothing when there is no geometry.
std::optional<Extents> extentsOf(const std::vector<Entity>& entities);

} // namespace dwg
