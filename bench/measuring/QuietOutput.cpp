#include "bench/measuring/QuietOutput.h"

#include <QString>

#include <cstdio>

namespace bench
{

namespace
{

void write(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    const bool isAlwaysGiven = text.startsWith("This plugin does not support") ||
                               text.startsWith("QStandardPaths: XDG_RUNTIME_DIR not set");
    if (type != QtDebugMsg && type != QtInfoMsg && !isAlwaysGiven)
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

} // namespace

void quietOutput()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(&write);
}

} // namespace bench
