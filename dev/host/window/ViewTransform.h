#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>

namespace devhost
{

/// How a part of model space is shown in a widget: model y points up, pixels point down.
class ViewTransform
{
public:
    /// Keeps the centre when the widget's size changes.
    void setSize(const QSize& pixels) { m_size = pixels; }

    QPointF toPixels(const QPointF& model) const;
    QPointF toModel(const QPointF& pixels) const;
    /// @return pixels per drawing unit.
    double scale() const { return m_scale; }
    /// @return the part of model space that is shown.
    QRectF visibleModel() const;

    /// Scales by @p factor so that the model point under @p pixels stays there. Stops at the limits of the
    /// scale.
    void zoomAt(const QPointF& pixels, double factor);
    void pan(const QPointF& pixels);
    /// Shows @p model as large as it fits, with a margin.
    void showAll(const QRectF& model);

private:
    QSizeF m_size;
    QPointF m_centre; // Model point in the middle.
    double m_scale = 20.0;
};

} // namespace devhost
