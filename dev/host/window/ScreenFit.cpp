#include "dev/host/window/ScreenFit.h"

#include <QScreen>
#include <QStyle>
#include <QWidget>

namespace devhost
{

void fitToScreen(QWidget& window)
{
    // What the frame really takes is known only once it has been drawn.
    const int titleHeight = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const int border = window.style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    const QSize frame(2 * border, titleHeight + 2 * border);
    window.resize(window.size().boundedTo(window.screen()->availableSize() - frame));
}

} // namespace devhost
