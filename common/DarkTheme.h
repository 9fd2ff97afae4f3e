#pragma once

#include <QtGlobal>

#include <optional>

class pvApplication_c;
class QWidget;

/// g_darkMode while the host's theme has not been read.
constexpr quint32 DarkModeUnread = 0xFFFFFFFFU;

/// The host's colour theme, process-wide: 0 light, any other value dark. Starts as DarkModeUnread, which
/// counts as dark too. Written once per process, by isDarkTheme or by the command registration, whichever is
/// first; a theme change in the host shows after a restart.
extern quint32 g_darkMode;

/// Reads the host's colour-theme option.
/// @param application may be null.
/// @return the option's value; nothing when the host hands out no options.
std::optional<quint32> readColourThemeOption(pvApplication_c* application);

/// Reads the theme into g_darkMode unless that has been done.
/// @param application the host; may be null.
/// @return whether the host is in its dark theme.
bool isDarkTheme(pvApplication_c* application);

/// Gives one widget the dark style sheet and, where the platform can, a dark title bar.
void applyDarkStyle(QWidget* widget);
