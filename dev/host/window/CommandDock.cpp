#include "dev/host/window/CommandDock.h"

#include "dev/host/window/CommandLine.h"

#include <QEvent>
#include <QMainWindow>

namespace devhost
{

namespace
{

constexpr int LargestShare = 40; // Percent of the window's height.

} // namespace

CommandDock::CommandDock(CommandLine* commandLine, QMainWindow& window) : QDockWidget("Command Line", &window)
{
    setObjectName("commandDock");
    setWidget(commandLine);
    window.installEventFilter(this);
    connect(this, &QDockWidget::topLevelChanged, this, &CommandDock::limitHeight);
}

bool CommandDock::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        limitHeight();
    return QDockWidget::eventFilter(watched, event);
}

void CommandDock::limitHeight()
{
    setMaximumHeight(isFloating() ? QWIDGETSIZE_MAX : parentWidget()->height() * LargestShare / 100);
}

} // namespace devhost
