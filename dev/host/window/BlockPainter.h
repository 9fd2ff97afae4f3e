#pragma once

#include "dev/host/model/BlockGeometry.h"
#include "dev/host/model/BlockPrompt.h"
#include "dev/host/window/DrawingColors.h"
#include "dev/host/window/ViewTransform.h"

class QPainter;

namespace devhost
{

/// @return the extents of a placed block in model space; null when it draws nothing.
QRectF blockExtents(const BlockGeometry& geometry, const BlockPlacement& placement);

/// Draws a placed block with its linetypes; one without lines as a cross at its insertion point.
void paintBlock(QPainter& painter, const ViewTransform& view, const DrawingColors& colors,
                const BlockGeometry& geometry, const BlockPlacement& placement);

/// Draws what shows around the lines of a selected block; goes under the block itself.
void paintSelection(QPainter& painter, const ViewTransform& view, const QColor& color,
                    const BlockGeometry& geometry, const BlockPlacement& placement);

} // namespace devhost
