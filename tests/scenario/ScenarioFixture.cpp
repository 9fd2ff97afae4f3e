#include "tests/scenario/ScenarioFixture.h"

#include "tests/support/ScriptedCatalog.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QtTest>

#include <algorithm>
#include <chrono>
#include <future>

namespace test
{

namespace
{

constexpr int Patience = 30000; // Milliseconds.

bool startsWith(const std::string& text, const std::string& beginning)
{
    return text.compare(0, beginning.size(), beginning) == 0;
}

/// @return the operation that a request names; empty for none.
std::string operationOf(const devcatalog::HttpRequest& request)
{
    const auto header = request.headers.find("soapaction");
    return header == request.headers.end() ? std::string()
                                           : header->second.substr(header->second.rfind('/') + 1);
}

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
    m_proxy = std::make_unique<ConnectProxy>(quint16(m_server.port()));
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
    release();
    stopCatalog();
    if (m_library.isLoaded())
        m_library.disconnect();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QSslConfiguration::setDefaultConfiguration(m_tlsBefore);
    QDir::setCurrent(m_folderBefore);
}

devcatalog::CatalogServerOptions ScenarioFixture::options()
{
    devcatalog::CatalogServerOptions options;
    options.serviceHost = ScriptedCatalog::host().toStdString();
    options.serviceAccount = {PARTHARBOR_SERVICE_CATALOG, PARTHARBOR_SERVICE_USER,
                              PARTHARBOR_SERVICE_PASSWORD, PARTHARBOR_SERVICE_ENDUSER};
    options.users = {{"demo@partharbor.example", "demo"}};
    options.certificateFolder = m_certificateFolder.filePath("certificates").toStdString();
    options.beforeReply = [this](const devcatalog::HttpRequest& request, devcatalog::HttpReply&) {
        keepBack(request);
    };
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

void ScenarioFixture::hold(const QString& operationOrPath)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_heldKey = operationOrPath.toStdString();
}

bool ScenarioFixture::isHeld()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_heldCount > 0;
}

void ScenarioFixture::release()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_heldKey.clear();
    m_heldCount = 0;
    m_released.notify_all();
}

void ScenarioFixture::keepBack(const devcatalog::HttpRequest& request)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    if (m_heldKey.empty() || (operationOf(request) != m_heldKey && !startsWith(request.path, m_heldKey)))
        return;
    ++m_heldCount;
    m_released.wait(lock, [this] { return m_heldKey.empty(); });
}

void ScenarioFixture::waitFor(const std::function<bool()>& condition)
{
    QVERIFY(QTest::qWaitFor([&] { return condition() || isHeld(); }, Patience));
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

void ScenarioFixture::openTab(int index)
{
    shown<QTabWidget>()->setCurrentIndex(index);
}

void ScenarioFixture::logIn()
{
    openTab(0);
    shown<QLineEdit>("email_lineEdit")->setText("demo@partharbor.example");
    shown<QLineEdit>("Pass_lineEdit_2")->setText("demo");
    const int boxesBefore = m_answerer.boxes().size();
    QTest::mouseClick(shown<QPushButton>("LogIn_pushButton"), Qt::LeftButton);
    waitFor([=] { return m_answerer.boxes().size() > boxesBefore; });
}

void ScenarioFixture::searchFor(const QString& term)
{
    openTab(1);
    QTest::keyClicks(shown<QLineEdit>("SearchLine"), term);
    QTest::keyClick(shown<QLineEdit>("SearchLine"), Qt::Key_Return);
}

void ScenarioFixture::turnToPage(const QString& page)
{
    for (QPushButton* button : shown("PartHarbor_2D")->findChildren<QPushButton*>()) {
        if (button->text() == page) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
    QFAIL("no such page button");
}

void ScenarioFixture::waitForResults(const QStringList& others)
{
    waitFor([=] { return rowNames() != others && hasPictures(); });
}

void ScenarioFixture::openPart(int row)
{
    QTest::mouseClick(rows().at(row)->findChild<QPushButton*>("iconpushButton"), Qt::LeftButton);
    waitFor([this] {
        const QLabel* configuration = configurationName();
        const QLabel* picture = preview();
        return configuration != nullptr && !configuration->text().isEmpty() && picture != nullptr &&
               !picture->pixmap(Qt::ReturnByValue).isNull();
    });
}

void ScenarioFixture::chooseView(const QString& view)
{
    shown<QComboBox>()->setCurrentText(view);
}

void ScenarioFixture::clickPreview()
{
    const std::size_t promptsBefore = m_view.prompts().size();
    QTest::mouseClick(preview(), Qt::LeftButton);
    waitFor([=] { return m_view.prompts().size() > promptsBefore && files().isEmpty(); });
}

void ScenarioFixture::goBack()
{
    openTab(1);
    QTest::mouseClick(shown<QPushButton>("pushButton"), Qt::LeftButton);
}

QVector<QWidget*> ScenarioFixture::rows() const
{
    QVector<QWidget*> all;
    const auto* table = shown<QTableWidget>("tableWidget");
    for (int row = 0; table != nullptr && row < table->rowCount(); ++row)
        if (QWidget* widget = table->cellWidget(row, 0))
            all.append(widget);
    return all;
}

bool ScenarioFixture::hasPictures() const
{
    const QVector<QWidget*> all = rows();
    return !all.isEmpty() && std::all_of(all.begin(), all.end(), [](const QWidget* row) {
        return !row->findChild<QPushButton*>("iconpushButton")->icon().isNull();
    });
}

QStringList ScenarioFixture::rowNames() const
{
    QStringList names;
    for (const QWidget* row : rows())
        names.append(row->findChild<QLabel*>("namevaluelabel")->text());
    return names;
}

QLabel* ScenarioFixture::configurationName() const
{
    return detailLabel([](const QLabel& label) { return label.frameShape() == QFrame::Box; });
}

QLabel* ScenarioFixture::preview() const
{
    return detailLabel([](const QLabel& label) { return label.inherits("ClickableLabel"); });
}

QLabel* ScenarioFixture::detailLabel(bool (*isWanted)(const QLabel&)) const
{
    const QWidget* page = shown("PreviewUI");
    if (page == nullptr)
        return nullptr;
    for (QLabel* label : page->findChildren<QLabel*>())
        if (isWanted(*label))
            return label;
    return nullptr;
}

} // namespace test
