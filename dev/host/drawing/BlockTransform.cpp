#include "dev/host/drawing/BlockTransform.h"

namespace devhost
{

QTransform blockTransform(const BlockPlacement& placement)
{
    QTransform transform;
    transform.translate(placement.x, placement.y);
    transform.rotateRadians(placement.rotation);
    transform.scale(placement.scaleX, placement.scaleY);
    return transform;
}

} // namespace devhost
