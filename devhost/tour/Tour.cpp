#include "devhost/tour/Tour.h"

#include "devhost/AddInSession.h"
#include "devhost/tour/LongRoad.h"
#include "devhost/tour/ShortRoad.h"
#include "devhost/window/MainWindow.h"

#include <QDockWidget>
#include <QGuiApplication>
#include <QScreen>
#include <QTemporaryDir>
#include <QTextStream>

namespace devhost
{

namespace
{

QtMessageHandler earlierHandler = nullptr;

/// Leaves out what would hide the tour's own lines: the service's replies, which the add-in writes to the
/// debug output with the keys in them, and the offscreen platform's remarks on what it cannot do.
void passOn(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type != QtDebugMsg && !text.startsWith("This plugin does not support"))
        earlierHandler(type, context, text);
}

/// Moves the window so that its pane lies on the offscreen platform's screen, which is smaller than the
/// window and within which lists open.
void moveOntoOffscreen(QWidget& window)
{
    if (QGuiApplication::platformName() == "offscreen")
        window.move(window.screen()->geometry().bottomRight() - window.rect().bottomRight());
}

} // namespace

Tour::Tour(MainWindow& window, AddInSession& session, const Options& options)
    : m_session(session),
      m_window(window),
      m_options(options),
      m_areDrawingsReadable(options.catalogConduct.drawings == CatalogConduct::Drawings::Whole),
      m_host(window, session),
      m_pane(window),
      m_placement(window, m_areDrawingsReadable),
      m_screenshots(options.tourFolder, window),
      m_player(window, m_screenshots)
{
}

bool Tour::run()
{
    const QString folder = m_screenshots.folder().path();
    if (!m_screenshots.prepare()) {
        QTextStream(stderr) << "The tour cannot write its screenshots into " << folder << ".\n";
        return false;
    }
    moveOntoOffscreen(m_window);
    earlierHandler = qInstallMessageHandler(passOn);
    const bool isComplete = playInOwnDirectory();
    qInstallMessageHandler(earlierHandler);
    QTextStream(stdout) << (isComplete ? "The tour has seen everything." : "The tour has failed.")
                        << " Its screenshots are in " << folder << ".\n";
    return isComplete;
}

bool Tour::playInOwnDirectory()
{
    const QTemporaryDir own;
    const QString before = QDir::currentPath();
    if (!QDir::setCurrent(own.path()))
        return false;
    bool isComplete = playRoad() && checkDrawing();
    isComplete = disconnect() && isComplete;
    isComplete = m_player.play({m_host.missCommand()}) && isComplete;
    QDir::setCurrent(before);
    return isComplete;
}

bool Tour::playRoad()
{
    return m_player.play(m_options.longRoad ? longRoad(m_host, m_pane, m_placement, m_options)
                                            : shortRoad(m_host, m_pane, m_placement, m_options));
}

bool Tour::checkDrawing()
{
    const int placed = m_options.longRoad ? 2 : 1;
    const int blocks = m_placement.blockCount();
    const QStringList files = PlacementSteps::downloadedFiles();
    const bool isRight = blocks == (m_areDrawingsReadable ? placed : 0) && files.isEmpty();
    m_player.report("Look at the drawing",
                    {isRight, QString("%1 blocks, %2 downloaded files left").arg(blocks).arg(files.size())});
    return isRight;
}

bool Tour::disconnect()
{
    const bool isUnloaded = m_session.stop();
    const bool hasPane = PanePages(m_window).dock() != nullptr;
    const ReferenceLedger& references = m_window.host().references();
    const QStringList files = PlacementSteps::downloadedFiles();
    const bool isRight = isUnloaded && !hasPane && references.outstanding() == 0 &&
                         references.errors().isEmpty() && files.isEmpty();
    m_player.report(
        "Disconnect the add-in",
        {isRight, QString("the library is %1, the pane is %2, %3 references and %4 files are left")
                      .arg(isUnloaded ? "unloaded" : "still loaded", hasPane ? "still there" : "gone")
                      .arg(references.outstanding())
                      .arg(files.size())});
    return isRight;
}

} // namespace devhost
