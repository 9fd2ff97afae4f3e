#pragma once

#include <QObject>
#include <QPointF>

namespace devhost
{

/// Says what of the host's model changed, so that a window can show it again.
class HostChanges : public QObject
{
    Q_OBJECT

signals:
    void menusChanged();
    void ribbonChanged();
    /// An add-in asked for the active drawing, and there is none.
    void drawingMissed();
    /// A drawing was opened, closed, made the active one, or got another unit.
    void documentsChanged();
    /// Blocks came into a drawing, or went.
    void blocksChanged();
    /// An add-in inserted a block at that point.
    void blockInserted(const QString& name, const QPointF& point);
};

} // namespace devhost
