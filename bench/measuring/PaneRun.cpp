#include "bench/measuring/PaneRun.h"

#include "dev/catalog/BuiltInOptions.h"

#include <QDir>

namespace bench
{

namespace
{

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
        giveUp("The library does not load: " + m_library.errorString());
}

PaneRun::~PaneRun()
{
    m_library.disconnect();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QDir::setCurrent(m_folderBefore);
}

StepTime PaneRun::connect()
{
    return measureStep(
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
    const devcatalog::UserAccount account = devcatalog::demoAccount();
    m_user.logIn(QString::fromStdString(account.userId), QString::fromStdString(account.password));
    waitFor("the login", [=] { return m_application.boxTexts().size() > boxesBefore; });
    if (m_application.boxTexts().constLast() != "Login is successful.")
        giveUp(m_application.boxTexts().constLast());
    m_user.openSearchTab();
    settle();
}

StepTime PaneRun::search(const QString& term)
{
    m_user.typeTerm(term);
    QCoreApplication::processEvents();
    return measureStep(
        "a page of results", [this] { m_user.pressReturn(); }, [this] { return m_user.hasPictures(); });
}

StepTime PaneRun::turnToPage(const QString& page)
{
    const QStringList before = m_user.rowNames();
    return measureStep(
        "another page of results", [&] { m_user.turnToPage(page); },
        [&] { return m_user.rowNames() != before && m_user.hasPictures(); });
}

StepTime PaneRun::openPart(int row)
{
    return measureStep(
        "a part", [&] { m_user.openPart(row); }, [this] { return m_user.hasPart() && hasAllReplies(); });
}

StepTime PaneRun::download()
{
    const std::size_t before = m_view.promptCount();
    return measureStep(
        "a drawing", [this] { m_user.clickPreview(); },
        [=] { return m_view.promptCount() > before && !hasFiles(); });
}

StepTime PaneRun::backToResults()
{
    return measureStep(
        "the results again", [this] { m_user.goBack(); },
        [this] { return m_user.isAt("PartHarbor_2D") && m_user.hasPictures(); });
}

StepTime PaneRun::backToMainPanel()
{
    return measureStep(
        "the main panel", [this] { m_user.goBack(); }, [this] { return m_user.isAt("PV3DPartHarbor_2D"); });
}

/// A request that was taken back never finishes for us, but its manager goes.
bool PaneRun::hasAllReplies() const
{
    return m_application.managers() == 0 || m_application.requests() == m_application.finishedRequests();
}

void PaneRun::settle()
{
    waitFor("the end of all requests", [this] {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return hasAllReplies();
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
