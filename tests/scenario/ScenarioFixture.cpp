#include "tests/scenario/ScenarioFixture.h"

#include "dev/catalog/BuiltInOptions.h"
#include "tests/support/ScriptedCatalog.h"

#include <QDir>
#include <QTest>

#include <algorithm>
#include <chrono>
#include <future>

namespace test
{

namespace
{

constexpr int Patience = 30000; // Milliseconds.

} // namespace

ScenarioFixture::ScenarioFixture()
    : m_folderBefore(QDir::currentPath()),
      m_tlsBefore(QSslConfiguration::defaultConfiguration()),
      m_server(options()),
      m_host(std::make_shared<devhost::HostApplication>(m_view)),
      m_library(SCENARIO_LIBRARY)
{
    QDir::setCurrent(m_currentFolder.path());
    m_server.start();
    m_proxy = std::make_unique<devcatalog::ConnectProxy>(quint16(m_server.port()));
    m_proxy->use();
    QSslConfiguration trusting = m_tlsBefore;
    trusting.addCaCertificates(QString::fromStdString(m_server.caFile().string()));
    QSslConfiguration::setDefaultConfiguration(trusting);
    m_host->newDocument();
    if (!m_library.load())
        qCritical("The library does not load: %s", qPrintable(m_library.errorString()));
}

ScenarioFixture::~ScenarioFixture()
{
    stopCatalog();
    if (m_library.isLoaded())
        m_library.disconnect();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QSslConfiguration::setDefaultConfiguration(m_tlsBefore);
    QDir::setCurrent(m_folderBefore);
}

devcatalog::CatalogServerOptions ScenarioFixture::options()
{
    devcatalog::CatalogServerOptions options = devcatalog::builtInOptions();
    options.serviceHost = ScriptedCatalog::host().toStdString();
    options.port = 0;
    options.certificateFolder = m_certificateFolder.filePath("certificates").toStdString();
    return options;
}

void ScenarioFixture::stopCatalog()
{
    // In another thread, for the connections that it ends go through the proxy, which lives in this one.
    const std::future<void> stopped = std::async(std::launch::async, [this] { m_server.stop(); });
    const auto hasStopped = [&] {
        return stopped.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
    };
    QVERIFY(QTest::qWaitFor(hasStopped, Patience));
}

void ScenarioFixture::restartCatalog()
{
    m_server.start();
    m_proxy->setTargetPort(quint16(m_server.port()));
}

QStringList ScenarioFixture::boxTexts() const
{
    QStringList texts;
    for (const SeenMessageBox& box : m_answerer.boxes())
        texts.append(box.text);
    return texts;
}

QStringList ScenarioFixture::files()
{
    return QDir::current().entryList(QDir::Files | QDir::Hidden);
}

void ScenarioFixture::waitFor(const std::function<bool()>& condition)
{
    QVERIFY(QTest::qWaitFor(condition, Patience));
}

void ScenarioFixture::connect()
{
    QVERIFY(m_library.connect(m_host.get()));
    waitForReplies("GenerateApiKeyByDescriptionResult", 2); // for its login page and for its main panel
}

void ScenarioFixture::waitForReplies(const QString& content, int count)
{
    // The session writes its replies to the debug output.
    waitFor([=] {
        const QStringList replies = m_warnings.debugLines().filter(QRegularExpression("^data "));
        return std::count_if(replies.begin(), replies.end(), [&](const QString& reply) {
                   return content.isEmpty() ? reply == "data \"\"" : reply.contains(content);
               }) >= count;
    });
}

void ScenarioFixture::logIn()
{
    const devcatalog::UserAccount account = devcatalog::demoAccount();
    const int boxesBefore = m_answerer.boxes().size();
    m_user.logIn(QString::fromStdString(account.userId), QString::fromStdString(account.password));
    waitFor([=] { return m_answerer.boxes().size() > boxesBefore; });
}

void ScenarioFixture::searchFor(const QString& term)
{
    m_user.openSearchTab();
    m_user.typeTerm(term);
    m_user.pressReturn();
}

void ScenarioFixture::turnToPage(const QString& page)
{
    QVERIFY2(m_user.turnToPage(page), "no such page button");
}

void ScenarioFixture::waitForResults(const QStringList& others)
{
    waitFor([=] { return m_user.rowNames() != others && m_user.hasPictures(); });
}

void ScenarioFixture::openPart(int row)
{
    m_user.openPart(row);
    waitFor([this] { return m_user.hasPart(); });
}

void ScenarioFixture::clickPreview()
{
    const std::size_t promptsBefore = m_view.promptCount();
    m_user.clickPreview();
    waitFor([=] { return m_view.promptCount() > promptsBefore && files().isEmpty(); });
}

void ScenarioFixture::goBack()
{
    m_user.openSearchTab();
    m_user.goBack();
}

} // namespace test
