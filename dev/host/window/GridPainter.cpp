#include "dev/host/window/GridPainter.h"

#include <QPainter>

#include <cmath>

namespace devhost
{

namespace
{

constexpr double SmallestPixels = 14.0; // Between grid lines.
constexpr int LinesPerMajor = 5;

void paintArrow(QPainter& painter, const QPointF& from, const QPointF& to, const QString& name)
{
    const QPointF along = (to - from) / std::hypot(to.x() - from.x(), to.y() - from.y());
    const QPointF across(-along.y(), along.x());
    painter.drawLine(from, to);
    painter.drawLine(to, to - along * 7.0 + across * 3.5);
    painter.drawLine(to, to - along * 7.0 - across * 3.5);
    const QPointF middle = to + along * 10.0;
    painter.drawText(QRectF(middle - QPointF(8.0, 8.0), QSizeF(16.0, 16.0)), Qt::AlignCenter, name);
}

void paintVertical(QPainter& painter, const ViewTransform& view, double x)
{
    const QRectF visible = view.visibleModel();
    painter.drawLine(view.toPixels({x, visible.top()}), view.toPixels({x, visible.bottom()}));
}

void paintHorizontal(QPainter& painter, const ViewTransform& view, double y)
{
    const QRectF visible = view.visibleModel();
    painter.drawLine(view.toPixels({visible.left(), y}), view.toPixels({visible.right(), y}));
}

} // namespace

double gridSpacing(const ViewTransform& view)
{
    const double least = SmallestPixels / view.scale();
    const double power = std::pow(10.0, std::floor(std::log10(least)));
    for (const double step : {1.0, 2.0, 5.0})
        if (step * power >= least)
            return step * power;
    return 10.0 * power;
}

void paintGrid(QPainter& painter, const ViewTransform& view, const DrawingColors& colors)
{
    const double spacing = gridSpacing(view);
    const QRectF visible = view.visibleModel();
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (const bool major : {false, true}) { // The stronger lines go over the others.
        painter.setPen(major ? colors.majorGrid : colors.minorGrid);
        const auto isWanted = [major](double index) {
            return (std::fmod(index, LinesPerMajor) == 0.0) == major;
        };
        for (double x = std::ceil(visible.left() / spacing); x * spacing <= visible.right(); ++x)
            if (isWanted(x))
                paintVertical(painter, view, x * spacing);
        for (double y = std::ceil(visible.top() / spacing); y * spacing <= visible.bottom(); ++y)
            if (isWanted(y))
                paintHorizontal(painter, view, y * spacing);
    }
    painter.setPen(colors.yAxis);
    paintVertical(painter, view, 0.0);
    painter.setPen(colors.xAxis);
    paintHorizontal(painter, view, 0.0);
}

void paintAxesSign(QPainter& painter, const QSize& size, const DrawingColors& colors)
{
    constexpr double length = 44.0; // Pixels, as below.
    const QPointF corner(26.0, size.height() - 26.0);
    painter.setPen(QPen(colors.xAxis, 1.4));
    paintArrow(painter, corner, corner + QPointF(length, 0.0), "X");
    painter.setPen(QPen(colors.yAxis, 1.4));
    paintArrow(painter, corner, corner - QPointF(0.0, length), "Y");
    painter.setPen(QPen(colors.foreground, 1.2));
    painter.drawRect(QRectF(corner - QPointF(4.0, 4.0), QSizeF(8.0, 8.0)));
}

} // namespace devhost
