#include "dev/host/scenario/Tour.h"

#include "dev/host/AddInSession.h"
#include "dev/host/scenario/LongScenario.h"
#include "dev/host/scenario/ShortScenario.h"
#include "dev/host/window/MainWindow.h"

#include <QDir>
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

/// Puts the window in the middle of the screen, where message boxes open. Of a screen that is smaller, as the
/// offscreen platform's is, it gets the corner where the pane is, for lists open within the screen.
void moveOntoScreen(QWidget& window)
{
    const QRect screen = window.screen()->geometry();
    QRect place(QPoint(), window.size());
    place.moveCenter(screen.center());
    place.moveRight(qMin(place.right(), screen.right()));
    place.moveBottom(qMin(place.bottom(), screen.bottom()));
    window.move(place.topLeft());
}

} // namespace

Tour::Tour(MainWindow& window, AddInSession& session, const Options& options)
    : m_session(session),
      m_window(window),
      m_options(options),
      m_host(window, session),
      m_pane(window),
      m_placement(window, options.catalogFaults.drawings == CatalogFaults::Drawings::Whole),
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
    moveOntoScreen(m_window);
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
    const bool isPlayed = m_player.play(scenario());
    // Only here, where nothing of the add-in is on the stack any more.
    const bool isUnloaded = m_session.stop();
    const bool isAddInGone = m_player.play({m_host.lookForRemains(isUnloaded), m_host.missCommand()});
    QDir::setCurrent(before);
    return isPlayed && isAddInGone;
}

Scenario Tour::scenario() const
{
    return m_options.longScenario ? longScenario(m_host, m_pane, m_placement, m_options)
                                  : shortScenario(m_host, m_pane, m_placement, m_options);
}

} // namespace devhost
