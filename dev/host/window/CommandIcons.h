#pragma once

#include <QIcon>

namespace devhost
{

/// @param command a host command. @param line colour of the icon's lines.
/// @return the command's icon; an empty one when it has none.
QIcon commandIcon(const QString& command, const QColor& line);

} // namespace devhost
