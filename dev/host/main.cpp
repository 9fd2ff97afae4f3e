#include "dev/host/AddInSession.h"
#include "dev/host/EmbeddedCatalog.h"
#include "dev/host/EndSignals.h"
#include "dev/host/Options.h"
#include "dev/host/scenario/Tour.h"
#include "dev/host/window/MainWindow.h"
#include "dev/host/window/ScreenFit.h"

#include <QApplication>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QSslConfiguration>
#include <QTextStream>

namespace
{

int fail(const QString& problem)
{
    QTextStream(stderr) << problem << '\n';
    return 2;
}

/// Without a window, for that may not be had where only help is wanted.
devhost::Options readOptions(int argc, char* argv[], QString* error)
{
    const QCoreApplication application(argc, argv);
    return devhost::parseOptions(QCoreApplication::arguments(), DEVHOST_DEFAULT_LIBRARY, error);
}

/// Trusts the file's certificate authority in all of the process's TLS connections. @return whether it has
/// one.
bool trust(const QString& caFile)
{
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    const bool added = configuration.addCaCertificates(caFile);
    QSslConfiguration::setDefaultConfiguration(configuration);
    return added;
}

/// Off the screen Qt's own font is larger than a desktop's, and a narrow pane looks worse than it
/// is.
void useDesktopFontSize()
{
    if (QGuiApplication::platformName() != "offscreen")
        return;
    QFont font = QApplication::font();
    font.setPointSize(9);
    QApplication::setFont(font);
}

int runWindow(const devhost::Options& options)
{
    devhost::MainWindow window(options.settings);
    if (options.windowSize.isValid())
        window.resize(options.windowSize);
    if (!options.tour) // Its screenshots have one size on every screen.
        devhost::fitToScreen(window);
    window.show();
    devhost::AddInSession session(QFileInfo(options.library).absoluteFilePath(), window);
    if (options.tour)
        return devhost::Tour(window, session, options).run() ? 0 : 1;
    session.start();
    if (options.gallery)
        window.showGallery();
    return QApplication::exec();
}

} // namespace

int main(int argc, char* argv[])
{
    QString error;
    devhost::Options options = readOptions(argc, argv, &error);
    if (!error.isEmpty())
        return fail(error);
    if (!options.help.isEmpty()) {
        QTextStream(stdout) << options.help;
        return 0;
    }
    if (options.quiet)
        QLoggingCategory::setFilterRules("default.debug=false");
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication application(argc, argv);
    QApplication::setApplicationName("Plotvane Development Host");
    useDesktopFontSize();
    devhost::endByEventLoopAtSignals();

    if (options.accountUser.isEmpty()) {
        options.accountUser = devhost::EmbeddedCatalog::accountUser();
        options.accountPassword = devhost::EmbeddedCatalog::accountPassword();
    }
    if (!options.caFile.isEmpty() && !trust(options.caFile))
        return fail(QString("--ca: there is no certificate in \"%1\".").arg(options.caFile));

    devhost::EmbeddedCatalog catalog;
    if (options.embeddedCatalog) {
        if (!catalog.start(options))
            return fail(catalog.errorString());
        trust(catalog.caFile());
    }
    return runWindow(options);
}
