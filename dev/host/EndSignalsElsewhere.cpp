#include "dev/host/EndSignals.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <csignal>

#include <unistd.h>

namespace devhost
{

namespace
{

int readEnd = -1;
int writeEnd = -1;

/// A signal handler may do little; writing into a pipe is allowed.
extern "C" void passSignalOn(int signal)
{
    const auto number = static_cast<unsigned char>(signal);
    if (write(writeEnd, &number, 1) != 1)
        _exit(128 + signal);
}

void endEventLoops()
{
    unsigned char signal = 0;
    if (read(readEnd, &signal, 1) == 1)
        QCoreApplication::exit(128 + signal);
}

} // namespace

void endByEventLoopAtSignals()
{
    int ends[2];
    if (pipe(ends) != 0)
        return;
    readEnd = ends[0];
    writeEnd = ends[1];
    auto* notifier = new QSocketNotifier(readEnd, QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(notifier, &QSocketNotifier::activated, &endEventLoops);

    struct sigaction action = {};
    action.sa_handler = passSignalOn;
    action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    for (const int signal : {SIGINT, SIGTERM})
        sigaction(signal, &action, nullptr);
}

} // namespace devhost
