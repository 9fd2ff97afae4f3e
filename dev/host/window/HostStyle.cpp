#include "dev/host/window/HostStyle.h"

#include <QPainter>
#include <QPushButton>
#include <QStyleOption>

namespace devhost
{

namespace
{

constexpr int FrameWidth = 2; // Pixels.

bool isFlatButton(const QWidget* widget)
{
    const auto* button = qobject_cast<const QPushButton*>(widget);
    return button != nullptr && button->isFlat();
}

} // namespace

HostStyle::HostStyle() : QProxyStyle("Fusion")
{
}

void HostStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_PushButton && option->state.testFlag(State_HasFocus) && isFlatButton(widget))
        drawPrimitive(PE_FrameFocusRect, option, painter, widget);
}

void HostStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    if (element != PE_FrameFocusRect || !isFlatButton(widget)) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    if (!option->state.testFlag(State_KeyboardFocusChange))
        return;
    painter->save();
    painter->setPen(QPen(option->palette.color(QPalette::Highlight), FrameWidth));
    painter->drawRect(widget->rect().adjusted(1, 1, -1, -1));
    painter->restore();
}

} // namespace devhost
