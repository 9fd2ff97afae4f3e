#include "dev/host/window/CommandShortcuts.h"

#include <QHash>

namespace devhost
{

QKeySequence commandShortcut(const QString& command)
{
    static const QHash<QString, QString> keys = {
        {"NEW", "Ctrl+N"},  {"OPEN", "Ctrl+O"}, {"SAVEAS", "Ctrl+Shift+S"},
        {"UNDO", "Ctrl+Z"}, {"REDO", "Ctrl+Y"}, {"ERASE", "Del"},
    };
    return QKeySequence(keys.value(command));
}

} // namespace devhost
