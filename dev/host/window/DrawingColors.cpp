#include "dev/host/window/DrawingColors.h"

#include "dev/host/model/BlockGeometry.h"

namespace devhost
{

DrawingColors DrawingColors::light()
{
    return {"#fdfdfb", "#eef0f2", "#dde1e6", "#d9534f", "#3f9b57", "#a9d0f5", "#1b1f24"};
}

DrawingColors DrawingColors::dark()
{
    return {"#1e252d", "#262e37", "#323c47", "#a9403d", "#3c8a52", "#2f5f8f", "#eef1f4"};
}

QColor DrawingColors::ofLine(quint32 rgb) const
{
    if (rgb == BlockPath::Foreground)
        return foreground;
    constexpr int readableDifference = 90; // Of 255, in lightness.
    QColor color = QColor::fromRgb(rgb);
    const int lightness = color.lightness();
    const int ground = background.lightness();
    if (std::abs(lightness - ground) < readableDifference) {
        const int moved = ground < 128 ? ground + readableDifference : ground - readableDifference;
        color.setHsl(color.hslHue(), color.hslSaturation(), moved);
    }
    return color;
}

} // namespace devhost
