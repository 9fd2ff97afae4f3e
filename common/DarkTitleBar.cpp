#include "common/DarkTitleBar.h"

WindowAttributeSetter g_windowAttributeSetter = platformWindowAttributeSetter();

void requestDarkTitleBar(std::uintptr_t window)
{
    constexpr unsigned long darkMode = 20;
    constexpr unsigned long darkModeOfOlderReleases = 19;
    constexpr std::int32_t on = 1;

    if (g_windowAttributeSetter(window, darkMode, on) != 0)
        g_windowAttributeSetter(window, darkModeOfOlderReleases, on);
}
