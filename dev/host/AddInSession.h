#pragma once

#include "dev/host/model/AddInLibrary.h"

#include <QObject>

namespace devhost
{

class MainWindow;

/// An add-in library in the host's window: connected, reconnected with what the user chose, and let go again.
class AddInSession final : public QObject
{
    Q_OBJECT

public:
    /// @param window must outlive the session.
    AddInSession(const QString& libraryFile, MainWindow& window);
    ~AddInSession() override;

    /// Loads the library and connects the add-in; says in the command line how that went. @return whether it
    /// did.
    bool start();
    /// Disconnects the add-in, if it is connected, and connects it with the settings chosen in the window.
    void reconnect();
    /// Disconnects and unloads. No code of the add-in may be on the stack. @return whether the library went.
    bool stop();

private:
    bool connectAddIn();
    void disconnectAddIn();

    AddInLibrary m_library;
    MainWindow& m_window;
    bool m_connected = false;
};

} // namespace devhost
