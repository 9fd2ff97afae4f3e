#pragma once

#include "dev/catalog/drawings/solids/Solid.h"
#include "dev/catalog/drawings/views/Camera.h"

#include <vector>

namespace devcatalog
{

/// A piece of an edge or outline that is either seen or hidden as a whole.
struct Stroke {
    Curve curve;
    bool hidden = false;
};

struct StrokeSet {
    std::vector<Stroke> strokes;
    double size = 0.0; ///< The solid's largest extent along an axis.
};

/// @return the strokes of a solid as a camera sees it; what is seen as a point is left out.
StrokeSet findStrokes(const Solid& solid, const Camera& camera);

} // namespace devcatalog
