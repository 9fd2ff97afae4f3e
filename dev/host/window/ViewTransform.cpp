#include "dev/host/window/ViewTransform.h"

#include <algorithm>

namespace devhost
{

namespace
{

constexpr double SmallestScale = 1e-6; // Pixels per drawing unit.
constexpr double LargestScale = 1e5;
constexpr double MarginFactor = 0.9;

} // namespace

QPointF ViewTransform::toPixels(const QPointF& model) const
{
    return {m_size.width() / 2.0 + (model.x() - m_centre.x()) * m_scale,
            m_size.height() / 2.0 - (model.y() - m_centre.y()) * m_scale};
}

QPointF ViewTransform::toModel(const QPointF& pixels) const
{
    return {m_centre.x() + (pixels.x() - m_size.width() / 2.0) / m_scale,
            m_centre.y() - (pixels.y() - m_size.height() / 2.0) / m_scale};
}

QRectF ViewTransform::visibleModel() const
{
    return QRectF(toModel({0.0, m_size.height()}), toModel({m_size.width(), 0.0})).normalized();
}

void ViewTransform::zoomAt(const QPointF& pixels, double factor)
{
    const QPointF fixed = toModel(pixels);
    m_scale = std::clamp(m_scale * factor, SmallestScale, LargestScale);
    m_centre += fixed - toModel(pixels);
}

void ViewTransform::pan(const QPointF& pixels)
{
    m_centre += QPointF(-pixels.x(), pixels.y()) / m_scale;
}

void ViewTransform::showAll(const QRectF& model)
{
    m_centre = model.center();
    const double perWidth = m_size.width() / std::max(model.width(), 1e-9);
    const double perHeight = m_size.height() / std::max(model.height(), 1e-9);
    m_scale = std::clamp(std::min(perWidth, perHeight) * MarginFactor, SmallestScale, LargestScale);
}

} // namespace devhost
