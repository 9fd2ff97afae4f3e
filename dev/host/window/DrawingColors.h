#pragma once

#include <QColor>

namespace devhost
{

/// The colours of model space in one theme.
struct DrawingColors {
    QColor background;
    QColor minorGrid;
    QColor majorGrid;
    QColor xAxis;
    QColor yAxis;
    QColor selection;  ///< Under the lines of selected blocks.
    QColor foreground; ///< Of lines in colour 7, crosshair and cross.

    static DrawingColors light();
    static DrawingColors dark();

    /// @param rgb 0xRRGGBB, BlockPath::Foreground for the foreground.
    /// @return the colour, made to stand out from the background where it would not.
    QColor ofLine(quint32 rgb) const;
};

} // namespace devhost
