#include "dev/host/window/BlockPainter.h"

#include <QPainter>
#include <QPainterPath>
#include <QtMath>

namespace devhost
{

namespace
{

QTransform toModel(const BlockPlacement& placement)
{
    QTransform transform;
    transform.translate(placement.x, placement.y);
    transform.rotateRadians(placement.rotation);
    transform.scale(placement.scaleX, placement.scaleY);
    return transform;
}

QTransform toPixels(const ViewTransform& view)
{
    const QPointF origin = view.toPixels({0.0, 0.0});
    return QTransform(view.scale(), 0.0, 0.0, -view.scale(), origin.x(), origin.y());
}

QPen penOf(LineType lineType, const QColor& color)
{
    QPen pen(color, lineType == LineType::Continuous ? 1.6 : 1.1);
    pen.setJoinStyle(Qt::RoundJoin);
    pen.setCapStyle(Qt::FlatCap);
    // Lengths in pen widths, so that they read the same at every zoom.
    if (lineType == LineType::Hidden)
        pen.setDashPattern({6.0, 4.0});
    if (lineType == LineType::Centre)
        pen.setDashPattern({16.0, 4.0, 3.0, 4.0});
    return pen;
}

void paintCross(QPainter& painter, const QPointF& centre, const QColor& color)
{
    constexpr double arm = 12.0; // Pixels.
    painter.setPen(QPen(color, 1.6));
    painter.drawLine(centre - QPointF(arm, arm), centre + QPointF(arm, arm));
    painter.drawLine(centre - QPointF(arm, -arm), centre + QPointF(arm, -arm));
}

} // namespace

QRectF blockExtents(const BlockGeometry& geometry, const BlockPlacement& placement)
{
    const QTransform transform = toModel(placement);
    QRectF extents;
    for (const BlockPath& path : geometry.paths)
        extents |= transform.map(QPolygonF(path.points)).boundingRect();
    return extents;
}

void paintBlock(QPainter& painter, const ViewTransform& view, const DrawingColors& colors,
                const BlockGeometry& geometry, const BlockPlacement& placement)
{
    if (geometry.paths.isEmpty()) {
        paintCross(painter, view.toPixels({placement.x, placement.y}), colors.foreground);
        return;
    }
    const QTransform transform = toModel(placement) * toPixels(view);
    for (const BlockPath& path : geometry.paths) {
        painter.setPen(penOf(path.lineType, colors.ofLine(path.rgb)));
        painter.drawPolyline(transform.map(QPolygonF(path.points)));
    }
}

} // namespace devhost
