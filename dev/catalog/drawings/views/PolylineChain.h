#pragma once

#include "dev/dwg/Drawing.h"

#include <vector>

namespace devcatalog
{

/// Joins open polylines that meet end to end, where just two of them meet; those that return to their start
/// get closed.
/// @param tolerance distance below which ends meet.
std::vector<dwg::Polyline> chainPolylines(std::vector<dwg::Polyline> pieces, double tolerance);

} // namespace devcatalog
