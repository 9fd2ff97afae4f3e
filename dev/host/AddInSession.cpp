#include "dev/host/AddInSession.h"

#include "dev/host/window/CommandLine.h"
#include "dev/host/window/MainWindow.h"
#include "dev/host/window/PlacementPrompt.h"

#include <QDir>
#include <QFileInfo>

namespace devhost
{

AddInSession::AddInSession(const QString& libraryFile, MainWindow& window)
    : m_library(libraryFile), m_window(window)
{
    connect(&window, &MainWindow::reconnectRequested, this, &AddInSession::reconnect);
}

AddInSession::~AddInSession()
{
    stop();
}

bool AddInSession::start()
{
    if (!m_library.load()) {
        m_window.commandLine().print(QString("No add-in: %1").arg(m_library.errorString()));
        return false;
    }
    return connectAddIn();
}

void AddInSession::reconnect()
{
    disconnectAddIn();
    start();
}

bool AddInSession::stop()
{
    disconnectAddIn();
    return m_library.unload();
}

bool AddInSession::connectAddIn()
{
    m_window.host().settings() = m_window.chosenSettings();
    m_connected = m_library.connect(&m_window.host());
    m_window.commandLine().print(m_connected ? QString("Add-in %1 connected.").arg(m_library.identifier())
                                             : QString("The add-in refused to connect."));
    if (!QFileInfo(QDir::currentPath()).isWritable())
        m_window.commandLine().print(
            QString("The current directory %1 cannot be written: the add-in will download no "
                    "drawing, and not say so.")
                .arg(QDir::toNativeSeparators(QDir::currentPath())));
    return m_connected;
}

void AddInSession::disconnectAddIn()
{
    if (!m_connected)
        return;
    if (PlacementPrompt* prompt = m_window.currentPrompt())
        prompt->cancel();
    m_connected = false;
    m_library.disconnect();
}

} // namespace devhost
