#pragma once

#include <QObject>

class QKeyEvent;
class QMainWindow;
class QWidget;

namespace devhost
{

class CommandLine;

/// Leads keys to the command line that are typed elsewhere in the window, as CAD programs do: printable ones
/// unless they go into a text field. Menus, dialogs and the keys of shortcuts are left alone, and so is
/// Space, which presses what has the focus.
class KeyRouter final : public QObject
{
    Q_OBJECT

public:
    /// Watches the application's keys. Both must outlive the router.
    KeyRouter(QMainWindow& window, CommandLine& commandLine);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isInWindow(const QWidget& widget) const;
    bool isForCommandLine(const QWidget& widget, const QKeyEvent& key) const;

    QMainWindow& m_window;
    CommandLine& m_commandLine;
    bool m_isInNativeWindow = false; // The key came to a window, and to no widget yet.
};

} // namespace devhost
