#pragma once

class QWidget;

namespace devhost
{

/// Makes a top-level widget no larger than its screen has room for, with the frame that the window manager
/// draws.
void fitToScreen(QWidget& window);

} // namespace devhost
