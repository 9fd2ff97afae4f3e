#pragma once

#include "dev/host/model/HostApplication.h"

#include <QTabWidget>

class QToolButton;

namespace devhost
{

/// The ribbon: the tabs, panels and buttons of a workspace of the host's model.
class Ribbon final : public QTabWidget
{
    Q_OBJECT

public:
    explicit Ribbon(QWidget* parent = nullptr);

    /// Shows the workspace as it is now; the current tab stays.
    void showWorkspace(const HostApplication& application, const HostWorkspace& workspace);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// A button with a command of the host's own was pressed.
    void commandChosen(const QString& command);
    /// An add-in's button was pressed.
    void userCommandChosen(const QString& id);

private:
    QWidget* createPage(const HostApplication& application, const HostRibbonTab& tab);
    QWidget* createPanel(const HostApplication& application, const HostRibbonPanel& panel);
    QToolButton* createButton(const HostApplication& application, const HostRibbonCommandButton& button);
};

} // namespace devhost
