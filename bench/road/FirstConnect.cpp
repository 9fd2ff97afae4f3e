#include "bench/road/FirstConnect.h"

#include "bench/measuring/MeasuredApplication.h"
#include "bench/measuring/PaneRun.h"

#include <QMainWindow>
#include <QProcess>
#include <QPushButton>

#include <cstdio>
#include <cstring>

namespace bench
{

namespace
{

constexpr const char* ConnectOption = "--connect-once";

} // namespace

StepTime measureFirstConnect(const QString& library)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), {ConnectOption, library});
    process.waitForFinished();
    const QList<QByteArray> times = process.readAllStandardOutput().trimmed().split(' ');
    if (times.size() != 2)
        giveUp("The process for a first connect has failed.");
    return {times[0].toLongLong(), times[1].toLongLong()};
}

bool connectIfAsked(int argc, char** argv)
{
    if (argc != 3 || std::strcmp(argv[1], ConnectOption) != 0)
        return false;
    MeasuredApplication application(argc, argv);
    // What a host has done long before: fonts and style are there.
    QMainWindow window;
    window.setCentralWidget(new QPushButton("Host"));
    window.show();
    QCoreApplication::processEvents();

    PaneRun run(application, QString::fromLocal8Bit(argv[2]));
    const StepTime time = run.connect();
    std::printf("%lld %lld\n", time.threadTime, time.wallTime);
    return true;
}

} // namespace bench
