#pragma once

#include <QObject>

namespace devhost
{

/// Says what of the host's model changed, so that a window can show it again.
class HostChanges : public QObject
{
    Q_OBJECT

signals:
    void menusChanged();
    void ribbonChanged();
    /// A drawing was opened, closed or made the active one.
    void documentsChanged();
    /// A block was placed in a drawing.
    void blocksChanged();
};

} // namespace devhost
