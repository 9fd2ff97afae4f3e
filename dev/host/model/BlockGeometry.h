#pragma once

#include <QPointF>
#include <QVector>

namespace devhost
{

enum class LineType { Continuous, Hidden, Centre };

/// An open line through points in drawing units; curves are given as many short segments.
struct BlockPath {
    QVector<QPointF> points;
    LineType lineType = LineType::Continuous;
    quint32 rgb = Foreground; ///< 0xRRGGBB.

    /// The colour that stands for black on white and white on black.
    static constexpr quint32 Foreground = 0xFFFFFF;
};

/// What a block draws, around its insertion base point (0, 0).
struct BlockGeometry {
    QVector<BlockPath> paths;
};

} // namespace devhost
