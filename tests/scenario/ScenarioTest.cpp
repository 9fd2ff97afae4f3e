#include "dev/catalog/BuiltInOptions.h"
#include "dev/catalog/CatalogServer.h"
#include "dev/catalog/drawings/PartDrawing.h"
#include "dev/catalog/parts/PartCatalog.h"
#include "dev/catalog/proxy/ConnectProxy.h"
#include "dev/dwg/Writer.h"
#include "dev/host/headless/PaneUser.h"
#include "dev/host/model/AddInLibrary.h"
#include "dev/host/model/HostApplication.h"
#include "tests/host/ScriptedHostView.h"
#include "tests/support/FatalWarnings.h"
#include "tests/support/MessageBoxAnswerer.h"
#include "tests/support/ScriptedCatalog.h"
#include "tests/support/WaitUntil.h"

#include <QBuffer>
#include <QDir>
#include <QImageReader>
#include <QLabel>
#include <QPushButton>
#include <QSslConfiguration>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>

#include <algorithm>
#include <chrono>
#include <future>
#include <memory>

using devcatalog::Part;
using test::waitUntil;

namespace
{

constexpr std::size_t PageSize = 5;
const QString Term = "bolt";

QString text(const std::string& utf8)
{
    return QString::fromStdString(utf8);
}

/// @return the picture as a row shows it, for comparison pixel by pixel.
QImage shownPicture(const QIcon& icon)
{
    return icon.pixmap(icon.availableSizes().value(0)).toImage().convertToFormat(QImage::Format_ARGB32);
}

/// @return the catalog's picture, reduced as a row reduces it.
QImage pictureOf(const Part& part, const QSize& size)
{
    constexpr int servedSize = 256;
    QByteArray png = QByteArray::fromStdString(devcatalog::drawThumbnail(part, servedSize, servedSize));
    QBuffer buffer(&png);
    QImageReader reader(&buffer);
    reader.setScaledSize(size);
    return QPixmap::fromImage(reader.read()).toImage().convertToFormat(QImage::Format_ARGB32);
}

/// The built library in a host, before the development catalog over HTTPS. The steps of a user wait for their
/// outcome.
struct Stage {
    Stage();
    ~Stage();

    /// In another thread, for the connections that the server ends go through the proxy, which lives in this
    /// one.
    void stopCatalog();
    /// @return whether the session has got so many replies with a text in them, or so many without any text.
    bool hasReplies(const QString& content, int count) const;
    void logIn();
    void search();
    /// Waits for other results than those, with their pictures.
    void waitForResults(const QStringList& others = {});
    /// Compares what is shown with a page of what the catalog finds.
    void compareRows(std::size_t page) const;

    test::FatalWarnings warnings;
    QTemporaryDir folder; ///< The current one.
    devcatalog::PartCatalog parts;
    std::unique_ptr<devcatalog::CatalogServer> server;
    std::unique_ptr<devcatalog::ConnectProxy> proxy;
    test::MessageBoxAnswerer answerer;
    test::ScriptedHostView view;
    devhost::PaneUser user{view};
    std::shared_ptr<devhost::HostApplication> host = std::make_shared<devhost::HostApplication>(view);
    devhost::AddInLibrary library{SCENARIO_LIBRARY};
};

Stage::Stage()
{
    QDir::setCurrent(folder.path());
    devcatalog::CatalogServerOptions options = devcatalog::builtInOptions();
    options.serviceHost = test::ScriptedCatalog::host().toStdString();
    options.port = 0;
    options.certificateFolder = folder.filePath("certificates").toStdString();
    server = std::make_unique<devcatalog::CatalogServer>(options);
    server->start();
    proxy = std::make_unique<devcatalog::ConnectProxy>(quint16(server->port()));
    proxy->use();
    QSslConfiguration trusting = QSslConfiguration::defaultConfiguration();
    trusting.addCaCertificates(QString::fromStdString(server->caFile().string()));
    QSslConfiguration::setDefaultConfiguration(trusting);
    host->newDocument();
    QVERIFY2(library.load() && library.connect(host.get()), qPrintable(library.errorString()));
    // For its login page and for its main panel.
    QVERIFY(waitUntil([this] { return hasReplies("GenerateApiKeyByDescriptionResult", 2); }));
}

Stage::~Stage()
{
    stopCatalog();
    library.disconnect();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QDir::setCurrent(QDir::tempPath());
}

void Stage::stopCatalog()
{
    const std::future<void> stopped = std::async(std::launch::async, [this] { server->stop(); });
    const auto hasStopped = [&] {
        return stopped.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
    };
    QVERIFY(QTest::qWaitFor(hasStopped, 30000));
}

bool Stage::hasReplies(const QString& content, int count) const
{
    // The session writes its replies to the debug output.
    const QStringList replies = warnings.debugLines().filter(QRegularExpression("^data "));
    return std::count_if(replies.begin(), replies.end(), [&](const QString& reply) {
               return content.isEmpty() ? reply == "data \"\"" : reply.contains(content);
           }) >= count;
}

void Stage::logIn()
{
    const devcatalog::UserAccount account = devcatalog::demoAccount();
    const int boxesBefore = answerer.boxes().size();
    user.logIn(text(account.userId), text(account.password));
    QVERIFY(waitUntil([=] { return answerer.boxes().size() > boxesBefore; }));
}

void Stage::search()
{
    user.openSearchTab();
    user.typeTerm(Term);
    user.pressReturn();
}

void Stage::waitForResults(const QStringList& others)
{
    QVERIFY(waitUntil([&] { return user.rowNames() != others && user.hasPictures(); }));
}

void Stage::compareRows(std::size_t page) const
{
    const std::vector<const Part*> found = parts.search(Term.toStdString());
    const std::size_t first = (page - 1) * PageSize;
    const QVector<QWidget*> rows = user.rows();
    QCOMPARE(std::size_t(rows.size()), std::min(PageSize, found.size() - first));
    for (int row = 0; row < rows.size(); ++row) {
        const Part& part = *found.at(first + std::size_t(row));
        const QWidget& shown = *rows.at(row);
        QCOMPARE(shown.findChild<QLabel*>("namevaluelabel")->text(), text(part.name));
        QCOMPARE(shown.findChild<QLabel*>("label")->text(), text(part.supplier));
        const QString description =
            part.description.empty() ? QString("None Provided") : text(part.description);
        QCOMPARE(shown.findChild<QTextEdit*>("descvaluelabel")->toPlainText(), description);
        const QIcon icon = shown.findChild<QPushButton*>("iconpushButton")->icon();
        QCOMPARE(shownPicture(icon), pictureOf(part, icon.availableSizes().value(0)));
    }
}

} // namespace

/// The whole add-in against the catalog, over HTTPS: what arrives is what the catalog holds, and nothing that
/// happens to the catalog or to the connection breaks the host.
class ScenarioTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_stage = std::make_unique<Stage>(); }
    void cleanup() { m_stage.reset(); }

    void whatTheCatalogHoldsArrives();
    void theCatalogMayStopAndComeBack();

private:
    std::unique_ptr<Stage> m_stage;
};

void ScenarioTest::whatTheCatalogHoldsArrives()
{
    const devhost::PaneUser& user = m_stage->user;
    m_stage->view.acceptPromptsAt(12.5, -3.0);
    m_stage->logIn();
    m_stage->search();
    m_stage->waitForResults();
    m_stage->compareRows(1);
    const QStringList firstPage = user.rowNames();
    QVERIFY(user.turnToPage("2"));
    m_stage->waitForResults(firstPage);
    m_stage->compareRows(2);

    constexpr int row = 1;
    const Part& part = *m_stage->parts.search(Term.toStdString()).at(PageSize + row);
    const devcatalog::Configuration& configuration = part.configurations.back();
    user.openPart(row);
    QVERIFY(waitUntil([&] { return user.hasPart(); }));
    QCOMPARE(user.configurationName()->text(), text(configuration.name));
    user.chooseView(" Right");
    user.clickPreview();
    QVERIFY(waitUntil([&] {
        return m_stage->view.promptCount() > 0 && QDir::current().isEmpty(QDir::Files | QDir::Hidden);
    }));
    const auto drawing = devcatalog::drawPart(part, configuration, "eDrawingView_RIGHT");
    QCOMPARE(m_stage->view.promptedContents().front(),
             QByteArray::fromStdString(dwg::writeDwg(drawing.value())));
    const auto blocks = m_stage->host->activeDocument()->blocks().objects();
    QCOMPARE(blocks.size(), std::size_t(1));
    QCOMPARE(blocks.front()->placement().x, 12.5);
    QCOMPARE(blocks.front()->placement().y, -3.0);

    QCOMPARE(m_stage->answerer.boxes().size(), 1);
    for (const devcatalog::RequestRecord& request : m_stage->server->requests())
        QVERIFY2(request.status == 200, request.fault.c_str());
}

void ScenarioTest::theCatalogMayStopAndComeBack()
{
    const devhost::PaneUser& user = m_stage->user;
    const auto& boxes = m_stage->answerer.boxes();
    const auto goBackUntil = [&](const QString& content, int count) {
        user.openSearchTab();
        user.goBack();
        QVERIFY(waitUntil([&] { return m_stage->hasReplies(content, count); }));
    };
    m_stage->search();
    m_stage->waitForResults();
    const QStringList firstPage = user.rowNames();

    m_stage->stopCatalog();
    QVERIFY(user.turnToPage("2"));
    QVERIFY(waitUntil([&] { return !user.hasPictures(); }));
    QCOMPARE(user.rowNames(), firstPage); // made again from the last good reply
    goBackUntil({}, 2);                   // the new panel's, which should have brought it a key
    m_stage->search();
    m_stage->logIn();
    QCOMPARE(boxes.size(), 2);
    QCOMPARE(boxes.at(0).text, QString("Server was unable to process request. Invalid key string."));
    QCOMPARE(boxes.at(1).text, QString("Login is not successful."));

    m_stage->server->start();
    m_stage->proxy->setTargetPort(quint16(m_stage->server->port()));
    goBackUntil("GenerateApiKeyByDescriptionResult", 3);
    m_stage->search();
    m_stage->waitForResults();
    m_stage->compareRows(2);
    m_stage->logIn();
    QCOMPARE(boxes.constLast().text, QString("Login is successful."));
}

QTEST_MAIN(ScenarioTest)
#include "ScenarioTest.moc"
