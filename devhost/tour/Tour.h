#pragma once

#include "devhost/Options.h"

namespace devhost
{

class MainWindow;

/// Plays the whole road through the add-in by real mouse and key events.
class Tour
{
public:
    /// @param window shown, with the add-in connected; must outlive the tour.
    Tour(MainWindow& window, const Options& options);

    /// @return whether everything was seen.
    bool run();

private:
    MainWindow& m_window;
    Options m_options;
};

} // namespace devhost
