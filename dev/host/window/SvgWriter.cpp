#include "dev/host/window/SvgWriter.h"

#include "dev/host/window/BlockPainter.h"

#include <QBuffer>
#include <QPainter>
#include <QSvgGenerator>

#include <algorithm>

namespace devhost
{

namespace
{

constexpr double LongerSide = 1000.0; // Pixels.
constexpr int ShorterSide = 50;       // At least.
constexpr double SmallestSide = 1e-9; // Drawing units; a drawing may be a line, or empty.

QRectF extentsOf(const PlacedBlocks& drawing)
{
    QRectF extents;
    for (const auto& block : drawing.blocks().objects())
        extents |= blockExtents(block->geometry(), block->placement());
    return extents;
}

} // namespace

QByteArray writeSvg(const PlacedBlocks& drawing)
{
    const QRectF extents = extentsOf(drawing);
    const double longer = std::max({extents.width(), extents.height(), SmallestSide});
    const QSize size(std::max(ShorterSide, qRound(extents.width() / longer * LongerSide)),
                     std::max(ShorterSide, qRound(extents.height() / longer * LongerSide)));
    ViewTransform view;
    view.setSize(size);
    view.showAll(extents);

    QByteArray svg;
    QBuffer buffer(&svg);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(size);
    generator.setViewBox(QRect(QPoint(), size));
    QPainter painter(&generator);
    const DrawingColors colors = DrawingColors::light();
    painter.fillRect(QRect(QPoint(), size), colors.background);
    for (const auto& block : drawing.blocks().objects())
        paintBlock(painter, view, colors, block->geometry(), block->placement());
    painter.end();
    return svg;
}

} // namespace devhost
