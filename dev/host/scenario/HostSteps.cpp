#include "dev/host/scenario/HostSteps.h"

#include "dev/host/AddInSession.h"
#include "dev/host/scenario/UserInput.h"
#include "dev/host/window/CommandLine.h"
#include "dev/host/window/MainWindow.h"

#include <QApplication>
#include <QDir>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

namespace devhost
{

namespace
{

const char Command[] = "3DPH";

} // namespace

HostSteps::HostSteps(MainWindow& window, AddInSession& session)
    : m_window(window), m_session(session), m_pages(window)
{
}

TourStep HostSteps::connectAddIn() const
{
    TourStep step;
    step.name = "Connect the add-in";
    step.seconds = 5;
    step.act = [this] {
        m_session.start();
        return QString();
    };
    step.look = [this]() -> Observation {
        const QTabWidget* tabs = m_pages.tabs();
        if (tabs == nullptr)
            return {false, "no pane is shown; " + m_window.commandLine().history().constLast()};
        const QString title = m_pages.dock()->windowTitle();
        return {tabs->count() == 2 && title == "3D PARTHARBOR",
                QString("pane \"%1\" with the tabs \"%2\" and \"%3\"")
                    .arg(title, tabs->tabText(0), tabs->tabText(1))};
    };
    return step;
}

TourStep HostSteps::runCommand(bool showsPane) const
{
    TourStep step;
    step.name = showsPane ? "Run the command again" : "Run the command";
    step.act = [this] { return typeCommand(); };
    step.look = [=] { return lookForPane(showsPane); };
    return step;
}

TourStep HostSteps::openRibbonTab() const
{
    TourStep step;
    step.name = "Open the ribbon tab of the add-in";
    step.act = [this]() -> QString {
        const QToolButton* button = ribbonButton();
        auto* ribbon = m_window.findChild<QTabWidget*>("ribbon");
        for (int tab = 0; button != nullptr && tab < ribbon->count(); ++tab)
            if (ribbon->widget(tab)->isAncestorOf(button))
                return userInput::clickTab(ribbon->findChild<QTabBar*>(), tab);
        return "no ribbon tab has the add-in's button";
    };
    step.look = [this]() -> Observation {
        const QToolButton* button = ribbonButton();
        return {button != nullptr && button->isVisible() && !button->icon().isNull(),
                button != nullptr ? QString("the ribbon has the button \"%1\"").arg(button->text())
                                  : QString("the ribbon has no button of the add-in")};
    };
    return step;
}

TourStep HostSteps::clickRibbonButton(bool showsPane) const
{
    TourStep step;
    step.name = "Click the ribbon button";
    step.act = [this] { return userInput::click(ribbonButton()); };
    step.look = [=] { return lookForPane(showsPane); };
    return step;
}

TourStep HostSteps::openMenu() const
{
    TourStep step;
    step.name = "Open the menu with the add-in's entry";
    step.act = [this]() -> QString {
        if (menu() == nullptr)
            return "no menu has an entry of the add-in";
        const QRect title = m_window.menuBar()->actionGeometry(menu()->menuAction());
        return userInput::click(m_window.menuBar(), title.center());
    };
    step.look = [this]() -> Observation {
        const bool isOpen = menu() != nullptr && menu()->isVisible();
        return {isOpen, isOpen ? QString("the menu has the entry \"%1\"").arg(menuEntry()->text())
                               : QString("the menu is not open")};
    };
    return step;
}

TourStep HostSteps::chooseMenuEntry(bool showsPane) const
{
    TourStep step;
    step.name = "Choose the menu entry";
    step.act = [this] {
        QMenu* entries = menu();
        return userInput::click(entries, entries != nullptr ? entries->actionGeometry(menuEntry()).center()
                                                            : QPoint());
    };
    step.look = [=] { return lookForPane(showsPane); };
    return step;
}

TourStep HostSteps::openHelp() const
{
    TourStep step;
    step.name = "Click the help button";
    step.act = [this]() -> QString {
        const QTabWidget* tabs = m_pages.tabs();
        const QWidget* corner = tabs != nullptr ? tabs->cornerWidget(Qt::TopRightCorner) : nullptr;
        return userInput::click(corner != nullptr ? corner->findChild<QPushButton*>() : nullptr);
    };
    step.look = [this]() -> Observation {
        const QString call =
            m_window.host().journal().lines().value(m_window.host().journal().lines().size() - 1);
        return {call.startsWith("OpenChmHelp") || call.startsWith("OpenWebHelp"), call};
    };
    return step;
}

TourStep HostSteps::switchTheme() const
{
    const bool toDark = !m_window.chosenSettings().darkTheme;
    TourStep step;
    step.name = "Switch the theme";
    step.act = [toDark] {
        QString problem = userInput::press(Qt::Key_S, Qt::AltModifier);
        for (const Qt::Key key : {Qt::Key_T, toDark ? Qt::Key_D : Qt::Key_L})
            problem += userInput::press(key);
        return problem;
    };
    step.look = [=]() -> Observation {
        const QWidget* pane = m_pages.dock();
        const QColor wanted = QApplication::palette().color(QPalette::WindowText);
        int others = 0;
        for (const QLabel* label : pane != nullptr ? pane->findChildren<QLabel*>() : QList<QLabel*>())
            others += label->isVisible() && label->palette().color(QPalette::WindowText) != wanted ? 1 : 0;
        const bool isOffered = m_window.findChild<QWidget*>("reconnectBar")->isVisible();
        return {m_window.chosenSettings().darkTheme == toDark && others == 0 && isOffered,
                QString("the host is %1, the pane has %2 texts in another colour, a reconnect is %3")
                    .arg(m_window.chosenSettings().darkTheme ? "dark" : "light")
                    .arg(others)
                    .arg(isOffered ? "offered" : "not offered")};
    };
    return step;
}

TourStep HostSteps::lookForRemains(bool isUnloaded) const
{
    TourStep step;
    step.name = "Look for what the add-in left behind";
    step.look = [=]() -> Observation {
        const ReferenceLedger& references = m_window.host().references();
        const bool isPaneGone = m_pages.dock() == nullptr;
        const bool isEntryGone = menuEntry() == nullptr && ribbonButton() == nullptr;
        const bool isFileGone = QDir::current().isEmpty();
        const bool isAllGone = isUnloaded && isPaneGone && isEntryGone && isFileGone &&
                               references.outstanding() == 0 && references.errors().isEmpty();
        return {isAllGone,
                QString("the library is %1, its pane is %2, its menu entry and ribbon button are %3, "
                        "%4 is left in the current directory, references to the host's objects: %5")
                    .arg(isUnloaded ? "unloaded" : "still loaded", isPaneGone ? "gone" : "still there",
                         isEntryGone ? "gone" : "still there", isFileGone ? "no file" : "a file")
                    .arg(references.outstanding())};
    };
    return step;
}

TourStep HostSteps::missCommand() const
{
    TourStep step;
    step.name = "Run the command without the add-in";
    step.act = [this] { return typeCommand(); };
    step.look = [this]() -> Observation {
        const QString answer = m_window.commandLine().history().constLast();
        return {answer.contains("Unknown command") && answer.contains(Command), answer};
    };
    return step;
}

QString HostSteps::typeCommand() const
{
    const QString problem = userInput::typeInto(m_window.commandLine().input(), Command);
    return problem.isEmpty() ? userInput::press(Qt::Key_Return) : problem;
}

Observation HostSteps::lookForPane(bool isToBeShown) const
{
    const bool isShown = m_pages.tabs() != nullptr;
    return {isShown == isToBeShown, isShown ? "the pane is shown" : "the pane is hidden"};
}

/// @return the identifier under which the host shows the add-in's Command; empty when it has none.
QString HostSteps::userCommandId() const
{
    const auto commands = m_window.host().userCommands().objects();
    return commands.empty() ? QString() : commands.front()->id();
}

QToolButton* HostSteps::ribbonButton() const
{
    const QString id = userCommandId();
    return id.isEmpty() ? nullptr : m_window.findChild<QTabWidget*>("ribbon")->findChild<QToolButton*>(id);
}

QAction* HostSteps::menuEntry() const
{
    const QString id = userCommandId();
    return id.isEmpty() ? nullptr : m_window.menuBar()->findChild<QAction*>(id);
}

QMenu* HostSteps::menu() const
{
    return menuEntry() != nullptr ? qobject_cast<QMenu*>(menuEntry()->parent()) : nullptr;
}

} // namespace devhost
