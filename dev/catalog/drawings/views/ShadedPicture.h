#pragma once

#include "dev/catalog/drawings/solids/Solid.h"
#include "dev/catalog/drawings/views/Camera.h"

#include <QImage>

namespace devcatalog
{

/// @return a solid's picture with shaded faces and drawn edges on a transparent background, fitted to the
/// size in pixels.
QImage paintSolid(const Solid& solid, const Camera& camera, int width, int height);

} // namespace devcatalog
