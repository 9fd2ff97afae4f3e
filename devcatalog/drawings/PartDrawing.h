#pragma once

#include "devcatalog/drawings/Drawing.h"
#include "devcatalog/parts/Part.h"

#include <optional>
#include <string>
#include <string_view>

namespace devcatalog
{

/// Draws a part in one view, from its own dimensions.
/// @param view wire name, for example "eDrawingView_FRONT".
/// @return the drawing in centimetres; nothing when the view is unknown or the part does not support it.
std::optional<Drawing> drawPart(const Part& part, const Configuration& configuration, std::string_view view);

/// Draws a part's thumbnail from the same geometry.
/// @param width, height in pixels.
/// @return a PNG file's bytes.
std::string drawThumbnail(const Part& part, int width, int height);

} // namespace devcatalog
