#pragma once

#include <QPalette>

namespace devhost
{

/// Gives the application the look of the light or the dark theme: Fusion with a palette of ours.
void applyWindowTheme(bool dark);

/// @return the theme's palette.
QPalette windowPalette(bool dark);

} // namespace devhost
