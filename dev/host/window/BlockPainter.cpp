#include "dev/host/window/BlockPainter.h"

#include "dev/host/drawing/BlockTransform.h"

#include <QPainter>
#include <QPainterPath>
#include <QtMath>

namespace devhost
{

namespace
{

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

void paintCross(QPainter& painter, const QPointF& centre, const QPen& pen)
{
    constexpr double arm = 12.0; // Pixels.
    painter.setPen(pen);
    painter.drawLine(centre - QPointF(arm, arm), centre + QPointF(arm, arm));
    painter.drawLine(centre - QPointF(arm, -arm), centre + QPointF(arm, -arm));
}

} // namespace

QRectF blockExtents(const BlockGeometry& geometry, const BlockPlacement& placement)
{
    const QTransform transform = blockTransform(placement);
    QRectF extents;
    for (const BlockPath& path : geometry.paths)
        extents |= transform.map(QPolygonF(path.points)).boundingRect();
    return extents;
}

void paintBlock(QPainter& painter, const ViewTransform& view, const DrawingColors& colors,
                const BlockGeometry& geometry, const BlockPlacement& placement)
{
    if (geometry.paths.isEmpty()) {
        paintCross(painter, view.toPixels({placement.x, placement.y}), QPen(colors.foreground, 1.6));
        return;
    }
    const QTransform transform = blockTransform(placement) * toPixels(view);
    for (const BlockPath& path : geometry.paths) {
        painter.setPen(penOf(path.lineType, colors.ofLine(path.rgb)));
        painter.drawPolyline(transform.map(QPolygonF(path.points)));
    }
}

void paintSelection(QPainter& painter, const ViewTransform& view, const QColor& color,
                    const BlockGeometry& geometry, const BlockPlacement& placement)
{
    const QPen pen(color, 6.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    if (geometry.paths.isEmpty())
        paintCross(painter, view.toPixels({placement.x, placement.y}), pen);
    painter.setPen(pen);
    const QTransform transform = blockTransform(placement) * toPixels(view);
    for (const BlockPath& path : geometry.paths)
        painter.drawPolyline(transform.map(QPolygonF(path.points)));
}

} // namespace devhost
