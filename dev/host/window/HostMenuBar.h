#pragma once

#include "dev/host/model/HostApplication.h"

#include <QMenuBar>

namespace devhost
{

/// The menu bar: the menus of the host's model, with captions and icons of user commands, and menus of the
/// window's own behind them.
class HostMenuBar final : public QMenuBar
{
    Q_OBJECT

public:
    explicit HostMenuBar(QWidget* parent = nullptr);

    /// Shows the model's menus as they are now, in front of the window's own.
    void showMenus(const HostApplication& application);

signals:
    /// An entry with a command of the host's own was chosen.
    void commandChosen(const QString& command);
    /// An add-in's entry was chosen.
    void userCommandChosen(const QString& id);

private:
    QMenu* createMenu(const HostApplication& application, const HostMenuItem& item);
    void addEntry(QMenu& menu, const HostApplication& application, const HostMenuItem& entry);

    QVector<QMenu*> m_modelMenus; // Owned by this menu bar.
};

} // namespace devhost
