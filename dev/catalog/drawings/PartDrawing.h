#pragma once

#include "dev/catalog/parts/Part.h"
#include "dev/dwg/Drawing.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace devcatalog
{

/// @return the wire names of the views that can be asked for.
std::vector<std::string_view> drawingViews();

/// Draws a part in one view, from its own dimensions.
/// @param view wire name, for example "eDrawingView_FRONT".
/// @return the drawing: outlines, hidden edges, threads and centre lines, in pictorial views outlines and
/// threads only;
///         nothing when the view is unknown or the part does not support it.
/// @throws std::invalid_argument when the part's family is unknown or the configuration lacks a dimension of
/// it;
///         std::runtime_error when the modelling kernel fails.
/// Any thread may call it: what the kernel works on belongs to the call.
std::optional<dwg::Drawing> drawPart(const Part& part, const Configuration& configuration,
                                     std::string_view view, dwg::Unit unit = dwg::Unit::Centimetre);

/// Draws a part's thumbnail from the same geometry, in its last configuration, on a transparent background.
/// @param width, height in pixels.
/// @return a PNG file's bytes.
/// @throws as drawPart does, and std::invalid_argument when a size is not positive.
std::string drawThumbnail(const Part& part, int width, int height);

} // namespace devcatalog
