#pragma once

#include <QProxyStyle>

namespace devhost
{

/// The style of the window and of what it hosts: Qt's Fusion, which leaves a flat button with the keyboard's
/// focus unmarked, and a frame for it.
class HostStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    HostStyle();

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

} // namespace devhost
