#pragma once

#include "devcatalog/drawings/Drawing.h"

#include <vector>

namespace devcatalog
{

/// Joins open polylines that meet end to end, where just two of them meet; those that return to their start
/// get closed.
/// @param tolerance distance below which ends meet.
std::vector<Polyline> chainPolylines(std::vector<Polyline> pieces, double tolerance);

} // namespace devcatalog
