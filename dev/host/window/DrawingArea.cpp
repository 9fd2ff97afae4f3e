#include "dev/host/window/DrawingArea.h"

#include "dev/host/window/BlockPainter.h"
#include "dev/host/window/BlockPicker.h"
#include "dev/host/window/GridPainter.h"

#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace devhost
{

namespace
{

const QRectF EmptyDrawingView(-3.0, -2.0, 24.0, 14.0); // Centimetres.
constexpr double ZoomStep = 1.25;
constexpr double PickBox = 4.0; // Half side in pixels.

} // namespace

DrawingArea::DrawingArea(QWidget* parent) : QWidget(parent)
{
    setObjectName("drawingArea");
    setAccessibleName("Model space");
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(200, 150);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void DrawingArea::setDocument(const std::shared_ptr<const HostDocument>& document)
{
    const bool isOther = document != m_document;
    m_document = document;
    setCursor(document ? Qt::BlankCursor : Qt::ArrowCursor);
    if (isOther) {
        clearSelection();
        zoomExtents();
    }
    update();
}

void DrawingArea::showBlocks()
{
    Blocks remaining;
    if (m_document)
        remaining = m_document->blocks().objects();
    const auto isGone = [&](const auto& block) {
        return std::find(remaining.begin(), remaining.end(), block) == remaining.end();
    };
    Blocks selection = m_selection;
    selection.erase(std::remove_if(selection.begin(), selection.end(), isGone), selection.end());
    select(selection);
    update();
}

void DrawingArea::select(const Blocks& blocks)
{
    if (blocks == m_selection)
        return;
    m_selection = blocks;
    emit selectionChanged();
    update();
}

void DrawingArea::pick(const QPointF& pixel, bool toggles)
{
    if (!m_document)
        return;
    const QPointF half(PickBox, PickBox);
    const auto block = blockIn(m_document->content(), m_view, QRectF(pixel - half, pixel + half));
    Blocks selection = m_selection;
    const auto at = std::find(selection.begin(), selection.end(), block);
    if (!block)
        selection.clear();
    else if (at == selection.end())
        selection.push_back(block);
    else if (toggles)
        selection.erase(at);
    select(selection);
}

void DrawingArea::setDark(bool dark)
{
    m_colors = dark ? DrawingColors::dark() : DrawingColors::light();
    update();
}

void DrawingArea::setGridVisible(bool visible)
{
    m_gridVisible = visible;
    update();
}

void DrawingArea::showBlockAtCursor(const BlockGeometry& geometry, const BlockPlacement& placement)
{
    m_blockAtCursor = BlockAtCursor{geometry, placement};
    update();
}

void DrawingArea::hideBlockAtCursor()
{
    m_blockAtCursor.reset();
    update();
}

void DrawingArea::zoomIn()
{
    m_view.zoomAt(QRectF(rect()).center(), ZoomStep);
    update();
}

void DrawingArea::zoomOut()
{
    m_view.zoomAt(QRectF(rect()).center(), 1.0 / ZoomStep);
    update();
}

void DrawingArea::zoomExtents()
{
    const QRectF all = extents();
    m_view.showAll(all.isNull() ? emptyView() : all);
    update();
}

/// @return the default view, as large in every unit.
QRectF DrawingArea::emptyView() const
{
    const double factor = unitFactor(DrawingUnit::Centimetre, unit());
    return QRectF(EmptyDrawingView.topLeft() * factor, EmptyDrawingView.size() * factor);
}

DrawingUnit DrawingArea::unit() const
{
    return m_document ? m_document->content().unit() : DrawingUnit::None;
}

QRectF DrawingArea::extents() const
{
    QRectF all;
    if (!m_document)
        return all;
    for (const auto& block : m_document->blocks().objects())
        all |= blockExtents(block->geometry(), block->placement());
    return all;
}

void DrawingArea::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (m_document) {
        paintDrawing(painter);
        return;
    }
    painter.fillRect(rect(), palette().color(QPalette::Mid));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignCenter, "No drawing is open.\nFile, New opens an empty one.");
}

void DrawingArea::paintDrawing(QPainter& painter) const
{
    painter.fillRect(rect(), m_colors.background);
    if (m_gridVisible)
        paintGrid(painter, m_view, m_colors);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const auto& block : m_selection)
        paintSelection(painter, m_view, m_colors.selection, block->geometry(), block->placement());
    for (const auto& block : m_document->blocks().objects())
        paintBlock(painter, m_view, m_colors, block->geometry(), block->placement());
    paintAxesSign(painter, size(), m_colors);
    paintCrosshair(painter);
    if (m_blockAtCursor) {
        painter.setRenderHint(QPainter::Antialiasing);
        BlockPlacement placement = m_blockAtCursor->placement;
        const QPointF point = toModel(m_cursor.value_or(QRectF(rect()).center()));
        placement.x = point.x();
        placement.y = point.y();
        paintBlock(painter, m_view, m_colors, m_blockAtCursor->geometry, placement);
    }
}

void DrawingArea::paintCrosshair(QPainter& painter) const
{
    if (!m_cursor || m_panFrom)
        return;
    const double gap = m_blockAtCursor ? 0.0 : PickBox; // There is nothing to pick while a block is placed.
    const QPointF at(std::floor(m_cursor->x()) + 0.5, std::floor(m_cursor->y()) + 0.5);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(m_colors.foreground, 1.0));
    painter.drawLine(QPointF(0.0, at.y()), at - QPointF(gap, 0.0));
    painter.drawLine(at + QPointF(gap, 0.0), QPointF(width(), at.y()));
    painter.drawLine(QPointF(at.x(), 0.0), at - QPointF(0.0, gap));
    painter.drawLine(at + QPointF(0.0, gap), QPointF(at.x(), height()));
    if (!m_blockAtCursor)
        painter.drawRect(QRectF(at - QPointF(PickBox, PickBox), QSizeF(2.0 * PickBox, 2.0 * PickBox)));
}

void DrawingArea::resizeEvent(QResizeEvent*)
{
    m_view.setSize(size());
    if (!m_fitted)
        zoomExtents();
    m_fitted = isVisible();
}

void DrawingArea::moveCursor(const QPointF& pixel)
{
    m_cursor = pixel;
    emit cursorMoved(toModel(pixel));
    update();
}

void DrawingArea::mouseMoveEvent(QMouseEvent* event)
{
    if (m_panFrom) {
        m_view.pan(event->localPos() - *m_panFrom);
        m_panFrom = event->localPos();
    }
    moveCursor(event->localPos());
}

void DrawingArea::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::MiddleButton) {
        m_panFrom = event->localPos();
        setCursor(Qt::ClosedHandCursor);
        return;
    }
    moveCursor(event->localPos());
    if (event->button() != Qt::LeftButton)
        return;
    if (!m_blockAtCursor)
        pick(event->localPos(), event->modifiers().testFlag(Qt::ShiftModifier));
    emit clicked(toModel(event->localPos()));
}

void DrawingArea::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::MiddleButton)
        return;
    m_panFrom.reset();
    setCursor(m_document ? Qt::BlankCursor : Qt::ArrowCursor);
    update();
}

void DrawingArea::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::MiddleButton)
        zoomExtents();
    else
        mousePressEvent(event);
}

void DrawingArea::wheelEvent(QWheelEvent* event)
{
    constexpr double notch = 120.0; // Eighths of a degree that one step of a common wheel turns.
    m_view.zoomAt(event->position(), std::pow(ZoomStep, event->angleDelta().y() / notch));
    moveCursor(event->position());
    event->accept();
}

void DrawingArea::leaveEvent(QEvent*)
{
    m_cursor.reset();
    update();
}
} // namespace devhost
