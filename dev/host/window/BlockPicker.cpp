#include "dev/host/window/BlockPicker.h"

#include "dev/host/drawing/BlockTransform.h"

#include <QLineF>
#include <QPolygonF>

#include <algorithm>

namespace devhost
{

namespace
{

/// @return whether the segment has a part in the box.
bool crosses(const QLineF& segment, const QRectF& box)
{
    // Cuts the segment at each side of the box; what is left runs from first to last of its length.
    double first = 0.0;
    double last = 1.0;
    const auto cut = [&](double start, double way, double low, double high) {
        if (way == 0.0)
            return start >= low && start <= high;
        const double atLow = (low - start) / way;
        const double atHigh = (high - start) / way;
        first = std::max(first, std::min(atLow, atHigh));
        last = std::min(last, std::max(atLow, atHigh));
        return first <= last;
    };
    return cut(segment.x1(), segment.dx(), box.left(), box.right()) &&
           cut(segment.y1(), segment.dy(), box.top(), box.bottom());
}

bool isIn(const HostBlockInstance& block, const QRectF& box)
{
    const BlockPlacement& placement = block.placement();
    if (block.geometry().paths.isEmpty())
        return box.contains(placement.x, placement.y);
    const QTransform transform = blockTransform(placement);
    for (const BlockPath& path : block.geometry().paths) {
        const QPolygonF points = transform.map(QPolygonF(path.points));
        for (int i = 1; i < points.size(); ++i)
            if (crosses(QLineF(points.at(i - 1), points.at(i)), box))
                return true;
    }
    return false;
}

} // namespace

std::shared_ptr<HostBlockInstance> blockIn(const PlacedBlocks& drawing, const ViewTransform& view,
                                           const QRectF& box)
{
    const QRectF inModel = QRectF(view.toModel(box.bottomLeft()), view.toModel(box.topRight())).normalized();
    const auto blocks = drawing.blocks().objects();
    const auto found = std::find_if(blocks.rbegin(), blocks.rend(),
                                    [&](const auto& block) { return isIn(*block, inModel); });
    return found != blocks.rend() ? *found : nullptr;
}

} // namespace devhost
