#include "bench/measuring/PaneRun.h"

#include "bench/measuring/CatalogProcess.h"
#include "bench/measuring/ProcessFigures.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTimer>

#include <cstdlib>
#include <iostream>

namespace bench
{

namespace
{

constexpr int Patience = 60000; // Milliseconds.

[[noreturn]] void giveUp(const std::string& problem)
{
    std::cerr << problem << std::endl;
    std::exit(2);
}

bool hasFiles()
{
    return !QDir::current().isEmpty(QDir::Files | QDir::Hidden);
}

} // namespace

PaneRun::PaneRun(MeasuredApplication& application, const QString& library)
    : m_application(application),
      m_folderBefore(QDir::currentPath()),
      m_host(std::make_shared<devhost::HostApplication>(m_view)),
      m_library(QDir::current().absoluteFilePath(library))
{
    QDir::setCurrent(m_currentFolder.path());
    m_view.acceptPromptsAt(0, 0);
    m_host->newDocument();
    if (!m_library.load())
        giveUp("The library does not load: " + m_library.errorString().toStdString());
}

PaneRun::~PaneRun()
{
    m_library.disconnect();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QDir::setCurrent(m_folderBefore);
}

void PaneRun::waitFor(const char* what, const std::function<bool()>& condition)
{
    QTimer deadline;
    deadline.setSingleShot(true);
    deadline.start(Patience);
    const auto isMet = [&] {
        const qint64 before = threadTime();
        const bool met = condition();
        m_lookingTime += threadTime() - before;
        return met;
    };
    while (!isMet()) {
        if (!deadline.isActive())
            giveUp(std::string(what) +
                   " never came; boxes: " + m_application.boxTexts().join(" | ").toStdString());
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

StepTime PaneRun::measure(const char* what, const std::function<void()>& act,
                          const std::function<bool()>& isDone)
{
    QElapsedTimer clock;
    clock.start();
    const qint64 before = threadTime();
    m_lookingTime = 0;
    act();
    waitFor(what, isDone);
    QCoreApplication::processEvents(); // what the outcome has still to paint
    return {threadTime() - before - m_lookingTime, clock.nsecsElapsed()};
}

StepTime PaneRun::connect()
{
    return measure(
        "the pane",
        [this] {
            if (!m_library.connect(m_host.get()))
                giveUp("The add-in does not connect.");
        },
        [this] { return m_user.page() != nullptr; });
}

void PaneRun::logIn()
{
    const int boxesBefore = m_application.boxTexts().size();
    m_user.logIn(CatalogProcess::User, CatalogProcess::Password);
    waitFor("the login", [=] { return m_application.boxTexts().size() > boxesBefore; });
    if (m_application.boxTexts().constLast() != "Login is successful.")
        giveUp(m_application.boxTexts().constLast().toStdString());
    m_user.openSearchTab();
    settle();
}

StepTime PaneRun::search(const QString& term)
{
    m_user.typeTerm(term);
    QCoreApplication::processEvents();
    return measure(
        "a page of results", [this] { m_user.pressReturn(); }, [this] { return m_user.hasPictures(); });
}

StepTime PaneRun::turnToPage(const QString& page)
{
    const QStringList before = m_user.rowNames();
    return measure(
        "another page of results", [&] { m_user.turnToPage(page); },
        [&] { return m_user.rowNames() != before && m_user.hasPictures(); });
}

StepTime PaneRun::openPart(int row)
{
    return measure(
        "a part", [&] { m_user.openPart(row); }, [this] { return m_user.hasPart(); });
}

StepTime PaneRun::download()
{
    const std::size_t before = m_view.promptCount();
    return measure(
        "a drawing", [this] { m_user.clickPreview(); },
        [=] { return m_view.promptCount() > before && !hasFiles(); });
}

StepTime PaneRun::backToResults()
{
    return measure(
        "the results again", [this] { m_user.goBack(); },
        [this] { return m_user.isAt("PartHarbor_2D") && m_user.hasPictures(); });
}

StepTime PaneRun::backToMainPanel()
{
    return measure(
        "the main panel", [this] { m_user.goBack(); }, [this] { return m_user.isAt("PV3DPartHarbor_2D"); });
}

void PaneRun::settle()
{
    // One that was taken back never finishes for us, but its manager goes.
    waitFor("the end of all requests", [this] {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return m_application.managers() == 0 || m_application.requests() == m_application.finishedRequests();
    });
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

void PaneRun::forgetHostRecords()
{
    m_host->journal().clear();
    m_host->closeActiveDocument();
    m_host->newDocument();
}

} // namespace bench
