#pragma once

#include "dev/host/window/DrawingColors.h"
#include "dev/host/window/ViewTransform.h"

class QPainter;

namespace devhost
{

/// @return the spacing of the grid lines in drawing units: 1, 2 or 5 times a power of ten, comfortable at
/// that scale.
double gridSpacing(const ViewTransform& view);

/// Draws the grid, every fifth line stronger, and the axes of model space.
void paintGrid(QPainter& painter, const ViewTransform& view, const DrawingColors& colors);

/// Draws the sign of the coordinate system in the lower left corner.
void paintAxesSign(QPainter& painter, const QSize& size, const DrawingColors& colors);

} // namespace devhost
