#include "dev/host/EndSignals.h"

#include <QCoreApplication>

#include <windows.h>

namespace devhost
{

namespace
{

constexpr int InterruptExitCode = 130;

/// Called in a thread of the system's. A console that is closed leaves no time for the event loop.
BOOL WINAPI endEventLoops(DWORD event)
{
    static bool isEnding = false;
    if ((event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT) || isEnding)
        return FALSE;
    isEnding = true;
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [] { QCoreApplication::exit(InterruptExitCode); },
        Qt::QueuedConnection);
    return TRUE;
}

} // namespace

void endByEventLoopAtSignals()
{
    SetConsoleCtrlHandler(&endEventLoops, TRUE);
}

} // namespace devhost
