#pragma once

#include <QKeySequence>
#include <QString>

namespace devhost
{

/// Name of the property that tells the host's command of a menu entry or a ribbon button.
constexpr char HostCommandProperty[] = "hostCommand";

/// @return the keys of a command of the host's own; empty when it has none.
QKeySequence commandShortcut(const QString& command);

} // namespace devhost
