#pragma once

#include "devcatalog/drawings/Drawing.h"
#include "devcatalog/drawings/DwgLayerStyle.h"

#include <string>

namespace devcatalog
{

/// Writes a drawing as a DWG file of release AC1015 (R2000 to R2002), units centimetres.
///
/// All entities lie in model space, on one layer for each LineKind, colour, linetype and width by layer. The
/// title becomes the description of model space, cut after 255 characters. Arcs stay polylines with bulges,
/// and a closed polyline never closes with an arc: its first vertex moves, or is repeated, since some readers
/// draw ARC entities wrongly and take a closing arc for straight. Extents, limits and the view follow from
/// the geometry. Equal drawings give equal bytes: dates are fixed and GUIDs come from the content.
///
/// @param drawing its coordinates may reach 1e9 cm; at most a million points in all. No entities give a
/// valid, empty file.
/// @return the file's bytes.
/// @throws std::invalid_argument naming what is wrong: a coordinate or bulge that is not finite or too large,
/// a radius
///         that is not positive, a polyline of less than 2 or more than 1000 vertices, too many points, a
///         layer name that is empty, too long, has a forbidden character or occurs twice (letter case
///         ignored; "0" is taken), an unknown colour or lineweight.
std::string writeDwg(const Drawing& drawing, const DwgLayerStyles& styles = standardLayerStyles());

} // namespace devcatalog
