#pragma once

class QWidget;

/// Lays a widget and all that it stands in out at once. Left to itself each level asks the next one by an
/// event of its own, up to the tab widget, which repaints all of its page each time.
/// @param widget a shown one whose contents have changed.
void settleLayout(QWidget* widget);
