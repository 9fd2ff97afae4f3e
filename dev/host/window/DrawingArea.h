#pragma once

#include "dev/host/model/HostDocument.h"
#include "dev/host/window/DrawingColors.h"
#include "dev/host/window/ViewTransform.h"

#include <QWidget>

#include <optional>

namespace devhost
{

/// Model space of the active drawing: grid, placed blocks, crosshair, and the block that is being placed.
///
/// A click on a block selects it with those selected before; with Shift it takes a selected one out again. A
/// click beside all blocks clears the selection. The wheel zooms around the cursor, the middle button pans,
/// its double click shows everything.
class DrawingArea final : public QWidget
{
    Q_OBJECT

public:
    explicit DrawingArea(QWidget* parent = nullptr);

    /// Shows the drawing; null shows that none is open. A drawing that is still shown keeps its view.
    void setDocument(const std::shared_ptr<const HostDocument>& document);
    const std::shared_ptr<const HostDocument>& document() const { return m_document; }

    void setDark(bool dark);
    void setGridVisible(bool visible);
    bool isGridVisible() const { return m_gridVisible; }

    /// Shows a block at the cursor until it is taken away; the placement's point is the cursor's.
    void showBlockAtCursor(const BlockGeometry& geometry, const BlockPlacement& placement);
    void hideBlockAtCursor();
    bool isBlockAtCursor() const { return m_blockAtCursor.has_value(); }

    /// @return the widget's pixel for a point in drawing units, and the reverse.
    QPoint toPixel(const QPointF& model) const { return m_view.toPixels(model).toPoint(); }
    QPointF toModel(const QPointF& pixel) const { return m_view.toModel(pixel); }

    void zoomIn();
    void zoomOut();
    /// Shows all blocks, or the default view in an empty drawing.
    void zoomExtents();

    /// @return the drawing's unit.
    DrawingUnit unit() const;

    /// @return the selected blocks, all of the drawing.
    const std::vector<std::shared_ptr<HostBlockInstance>>& selection() const { return m_selection; }
    void clearSelection() { select({}); }
    /// Shows the blocks that the drawing has now.
    void showBlocks();

signals:
    void cursorMoved(const QPointF& model);
    void clicked(const QPointF& model);
    void selectionChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    struct BlockAtCursor {
        BlockGeometry geometry;
        BlockPlacement placement;
    };

    using Blocks = std::vector<std::shared_ptr<HostBlockInstance>>;

    QRectF extents() const;
    QRectF emptyView() const;
    void select(const Blocks& blocks);
    void pick(const QPointF& pixel, bool toggles);
    void moveCursor(const QPointF& pixel);
    void paintDrawing(QPainter& painter) const;
    void paintCrosshair(QPainter& painter) const;

    std::shared_ptr<const HostDocument> m_document;
    ViewTransform m_view;
    DrawingColors m_colors = DrawingColors::light();
    bool m_gridVisible = true;
    bool m_fitted = false; // The view was fitted to the widget's first size.
    Blocks m_selection;
    std::optional<BlockAtCursor> m_blockAtCursor;
    std::optional<QPointF> m_cursor; // Pixel under the cursor while it is in the area.
    std::optional<QPointF> m_panFrom;
};

} // namespace devhost
