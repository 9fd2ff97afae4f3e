#include "dev/catalog/drawings/PartDrawing.h"
#include "dev/dwg/Writer.h"
#include "tests/scenario/ScenarioFixture.h"

#include <QBuffer>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>

#include <algorithm>

using devcatalog::Part;

namespace
{

constexpr std::size_t PageSize = 5;
constexpr int Patience = 30000; // Milliseconds.

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

} // namespace

/// The whole add-in against the catalog, over HTTPS: what arrives is what the catalog holds, and nothing that
/// happens to the catalog or to the connection breaks the host.
class ScenarioTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_scenario = std::make_unique<test::ScenarioFixture>(); }
    void cleanup() { m_scenario.reset(); }

    void whatTheCatalogHoldsArrives();
    void theCatalogMayStopAndComeBack();

private:
    void compareRows(const QString& term, std::size_t page);

    std::unique_ptr<test::ScenarioFixture> m_scenario;
};

void ScenarioTest::compareRows(const QString& term, std::size_t page)
{
    const std::vector<const Part*> found = m_scenario->parts().search(term.toStdString());
    const std::size_t first = (page - 1) * PageSize;
    const QVector<QWidget*> rows = m_scenario->user().rows();
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

void ScenarioTest::whatTheCatalogHoldsArrives()
{
    const QString term = "bolt";
    m_scenario->view().acceptPromptsAt(12.5, -3.0);
    m_scenario->connect();
    m_scenario->logIn();
    m_scenario->searchFor(term);
    m_scenario->waitForResults();
    compareRows(term, 1);
    const QStringList firstPage = m_scenario->user().rowNames();
    m_scenario->turnToPage("2");
    m_scenario->waitForResults(firstPage);
    compareRows(term, 2);

    constexpr int row = 1;
    const Part& part = *m_scenario->parts().search(term.toStdString()).at(PageSize + row);
    const devcatalog::Configuration& configuration = part.configurations.back();
    m_scenario->openPart(row);
    QCOMPARE(m_scenario->user().configurationName()->text(), text(configuration.name));
    m_scenario->user().chooseView(" Right");
    m_scenario->clickPreview();
    QCOMPARE(m_scenario->view().prompts().size(), std::size_t(1));
    const auto drawing = devcatalog::drawPart(part, configuration, "eDrawingView_RIGHT");
    QVERIFY(drawing.has_value());
    QCOMPARE(m_scenario->view().promptedContents().front(),
             QByteArray::fromStdString(dwg::writeDwg(*drawing)));
    const auto blocks = m_scenario->host().activeDocument()->blocks().objects();
    QCOMPARE(blocks.size(), std::size_t(1));
    QCOMPARE(blocks.front()->placement().x, 12.5);
    QCOMPARE(blocks.front()->placement().y, -3.0);

    QCOMPARE(m_scenario->boxTexts(), QStringList{"Login is successful."});
    for (const devcatalog::RequestRecord& request : m_scenario->server().requests())
        QVERIFY2(request.status == 200, request.fault.c_str());
}

void ScenarioTest::theCatalogMayStopAndComeBack()
{
    const QString term = "bolt";
    m_scenario->connect();
    m_scenario->searchFor(term);
    m_scenario->waitForResults();
    const QStringList firstPage = m_scenario->user().rowNames();

    m_scenario->stopCatalog();
    m_scenario->turnToPage("2");
    QTRY_VERIFY_WITH_TIMEOUT(!m_scenario->user().hasPictures(), Patience);
    QCOMPARE(m_scenario->user().rowNames(), firstPage); // made again from the last good reply
    m_scenario->goBack();
    m_scenario->waitForReplies(QString(), 2); // the new panel's, which should have brought it a key
    m_scenario->searchFor(term);
    m_scenario->logIn();
    QCOMPARE(m_scenario->boxTexts(), QStringList({"Server was unable to process request. Invalid key string.",
                                                  "Login is not successful."}));

    m_scenario->restartCatalog();
    m_scenario->goBack();
    m_scenario->waitForReplies("GenerateApiKeyByDescriptionResult", 3);
    m_scenario->searchFor(term);
    m_scenario->waitForResults();
    compareRows(term, 2);
    m_scenario->logIn();
    QCOMPARE(m_scenario->boxTexts().constLast(), QString("Login is successful."));
}

QTEST_MAIN(ScenarioTest)
#include "ScenarioTest.moc"
