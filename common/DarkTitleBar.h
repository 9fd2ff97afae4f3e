#pragma once

#include <cstdint>

// The only platform call of the add-in. This header and its implementations stay free of Qt, so that
// the Windows one compiles wherever a Windows compiler is.

/// Sets an attribute of a native window with the desktop window manager.
/// @param window native window handle.
/// @param attribute number of the attribute.
/// @param value 4-byte value of the attribute.
/// @return 0 on success.
using WindowAttributeSetter = long (*)(std::uintptr_t window, unsigned long attribute, std::int32_t value);

/// @return the platform's setter; null where the platform has none.
WindowAttributeSetter platformWindowAttributeSetter();

/// What requestDarkTitleBar calls: the platform's setter from load on. Tests put their own in its place.
extern WindowAttributeSetter g_windowAttributeSetter;

/// Asks for a dark title bar: attribute 20 and, where that is refused, its older number 19. Not to be called
/// while g_windowAttributeSetter is null.
/// Source: "DWMWA_USE_IMMERSIVE_DARK_MODE", Microsoft's DWMWINDOWATTRIBUTE page; builds before 18985 used 19.
void requestDarkTitleBar(std::uintptr_t window);
