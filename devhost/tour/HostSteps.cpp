#include "devhost/tour/HostSteps.h"

#include "devhost/AddInSession.h"
#include "devhost/tour/UserInput.h"
#include "devhost/window/CommandLine.h"
#include "devhost/window/MainWindow.h"

#include <QDockWidget>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

namespace devhost
{

namespace
{

const char command[] = "3DPH";

} // namespace

HostSteps::HostSteps(MainWindow& window, AddInSession& session)
    : m_window(window), m_session(session), m_pages(window)
{
}

TourStep HostSteps::connectAddIn() const
{
    TourStep step;
    step.name = "Connect the add-in";
    step.act = [this] { return m_session.start() ? QString() : QString("the add-in does not connect"); };
    step.look = [this]() -> Sight {
        const QTabWidget* tabs = m_pages.tabs();
        if (tabs == nullptr)
            return {false, "no pane is shown"};
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
    step.look = [this, showsPane]() -> Sight {
        const bool isShown = m_pages.tabs() != nullptr;
        return {isShown == showsPane, isShown ? "the pane is shown" : "the pane is hidden"};
    };
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
    step.look = [this]() -> Sight {
        const QString call =
            m_window.host().journal().lines().value(m_window.host().journal().lines().size() - 1);
        return {call.startsWith("OpenChmHelp") || call.startsWith("OpenWebHelp"), call};
    };
    return step;
}

TourStep HostSteps::missCommand() const
{
    TourStep step;
    step.name = "Run the command without the add-in";
    step.act = [this] { return typeCommand(); };
    step.look = [this]() -> Sight {
        const QString answer = m_window.commandLine().history().constLast();
        return {answer.contains("Unknown command") && answer.contains(command), answer};
    };
    return step;
}

QString HostSteps::typeCommand() const
{
    const QString problem = userInput::typeInto(m_window.commandLine().input(), command);
    return problem.isEmpty() ? userInput::press(Qt::Key_Return) : problem;
}

} // namespace devhost
