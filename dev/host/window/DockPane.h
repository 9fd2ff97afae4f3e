#pragma once

#include "dev/host/model/HostView.h"

#include <QPointer>

class QDockWidget;
class QMainWindow;

namespace devhost
{

/// A pane docked in the window: a dock widget around a plain native widget that the pane's owner fills.
class DockPane final : public PaneView
{
public:
    DockPane(const QString& title, QMainWindow& window);
    ~DockPane() override;

    quintptr windowHandle() const override;
    bool isVisible() const override;
    void setVisible(bool visible) override;

private:
    QPointer<QDockWidget> m_dock; // Goes with the window, should that end first.
};

} // namespace devhost
