#pragma once

#include <QDockWidget>

class QMainWindow;

namespace devhost
{

class CommandLine;

/// The dock of the command line. In the window it leaves the drawing its room: it gets no more than 40 % of
/// the window's height, and no less than the input and one line of the history need.
class CommandDock final : public QDockWidget
{
    Q_OBJECT

public:
    /// @param commandLine goes over to the dock.
    CommandDock(CommandLine* commandLine, QMainWindow& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void limitHeight();
};

} // namespace devhost
