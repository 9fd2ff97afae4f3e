#include "devcatalog/drawings/PartDrawing.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace devcatalog
{

namespace
{

QPainterPath pathOf(const Shape& shape)
{
    QPainterPath path;
    if (const auto* circle = std::get_if<Circle>(&shape)) {
        path.addEllipse(QPointF(circle->centre.x, circle->centre.y), circle->radius, circle->radius);
    } else if (const auto* line = std::get_if<Polyline>(&shape)) {
        QPolygonF polygon;
        for (const PolylineVertex& vertex : line->vertices)
            polygon << QPointF(vertex.point.x, vertex.point.y);
        path.addPolygon(polygon);
        path.closeSubpath();
    }
    return path;
}

} // namespace

std::string drawThumbnail(const Part& part, int width, int height)
{
    QPainterPath path;
    if (const auto drawing = drawPart(part, part.configurations.back(), "eDrawingView_FRONT"))
        for (const Entity& entity : drawing->entities)
            path.addPath(pathOf(entity.shape));
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF bounds = path.boundingRect();
    const double scale = 0.9 * std::min(width / bounds.width(), height / bounds.height());
    painter.translate(width / 2.0, height / 2.0);
    painter.scale(scale, -scale);
    painter.translate(-bounds.center());
    QPen pen(Qt::black, 1.2);
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.setBrush(QColor(0xc8, 0xd2, 0xdc));
    painter.drawPath(path);
    painter.end();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data().toStdString();
}

} // namespace devcatalog
