#include "devcatalog/drawings/DwgWriter.h"
#include "devcatalog/drawings/PartDrawing.h"
#include "tests/road/RoadFixture.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>
#include <QtTest>

#include <algorithm>

using devcatalog::Part;

namespace
{

constexpr std::size_t pageSize = 5;
constexpr int patience = 30000; // Milliseconds.

QString text(const std::string& utf8)
{
    return QString::fromStdString(utf8);
}

/// @return the picture as a row shows it, for comparison pixel by pixel.
QImage shownPicture(const QIcon& icon)
{
    return icon.pixmap(icon.availableSizes().value(0)).toImage().convertToFormat(QImage::Format_ARGB32);
}

QImage pictureOf(const Part& part, const QSize& size)
{
    const std::string png = devcatalog::drawThumbnail(part, size.width(), size.height());
    return QImage::fromData(QByteArray::fromStdString(png)).convertToFormat(QImage::Format_ARGB32);
}

} // namespace

/// The whole add-in against the catalog, over HTTPS: what arrives is what the catalog holds, and nothing that
/// happens to the catalog or to the connection breaks the host.
class RoadTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_road = std::make_unique<test::RoadFixture>(); }
    void cleanup() { m_road.reset(); }

    void whatTheCatalogHoldsArrives();
    void theCatalogMayStopAndComeBack();
    void theLibraryMayGoWhileAReplyIsOnItsWay_data();
    void theLibraryMayGoWhileAReplyIsOnItsWay();

private:
    void compareRows(const QString& term, std::size_t page);

    std::unique_ptr<test::RoadFixture> m_road;
};

void RoadTest::compareRows(const QString& term, std::size_t page)
{
    const std::vector<const Part*> found = m_road->parts().search(term.toStdString());
    const std::size_t first = (page - 1) * pageSize;
    const QVector<QWidget*> rows = m_road->rows();
    QCOMPARE(std::size_t(rows.size()), std::min(pageSize, found.size() - first));
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

void RoadTest::whatTheCatalogHoldsArrives()
{
    const QString term = "bolt";
    m_road->view().acceptPromptsAt(12.5, -3.0);
    m_road->connect();
    m_road->logIn();
    m_road->searchFor(term);
    m_road->waitForResults();
    compareRows(term, 1);
    const QStringList firstPage = m_road->rowNames();
    m_road->turnToPage("2");
    m_road->waitForResults(firstPage);
    compareRows(term, 2);

    constexpr int row = 1;
    const Part& part = *m_road->parts().search(term.toStdString()).at(pageSize + row);
    const devcatalog::Configuration& configuration = part.configurations.back();
    m_road->openPart(row);
    QCOMPARE(m_road->configurationName()->text(), text(configuration.name));
    m_road->chooseView(" Right");
    m_road->clickPreview();
    QCOMPARE(m_road->view().prompts().size(), std::size_t(1));
    const auto drawing = devcatalog::drawPart(part, configuration, "eDrawingView_RIGHT");
    QVERIFY(drawing.has_value());
    QCOMPARE(m_road->view().promptedContents().front(),
             QByteArray::fromStdString(devcatalog::writeDwg(*drawing)));
    const auto blocks = m_road->host().activeDocument()->blocks().objects();
    QCOMPARE(blocks.size(), std::size_t(1));
    QCOMPARE(blocks.front()->placement().x, 12.5);
    QCOMPARE(blocks.front()->placement().y, -3.0);

    QCOMPARE(m_road->boxTexts(), QStringList{"Login is successful."});
    for (const devcatalog::RequestRecord& request : m_road->server().requests())
        QVERIFY2(request.status == 200, request.fault.c_str());
}

void RoadTest::theCatalogMayStopAndComeBack()
{
    const QString term = "bolt";
    m_road->connect();
    m_road->searchFor(term);
    m_road->waitForResults();
    const QStringList firstPage = m_road->rowNames();

    m_road->stopCatalog();
    m_road->turnToPage("2");
    QTRY_VERIFY_WITH_TIMEOUT(!m_road->hasPictures(), patience);
    QCOMPARE(m_road->rowNames(), firstPage); // made again from the last good reply
    m_road->goBack();
    m_road->waitForReplies(QString(), 2); // the new panel's, which should have brought it a key
    m_road->searchFor(term);
    m_road->logIn();
    QCOMPARE(m_road->boxTexts(), QStringList({"Server was unable to process request. Invalid key string.",
                                              "Login is not successful."}));

    m_road->restartCatalog();
    m_road->goBack();
    m_road->waitForReplies("GenerateApiKeyByDescriptionResult", 3);
    m_road->searchFor(term);
    m_road->waitForResults();
    compareRows(term, 2);
    m_road->logIn();
    QCOMPARE(m_road->boxTexts().constLast(), QString("Login is successful."));
}

void RoadTest::theLibraryMayGoWhileAReplyIsOnItsWay_data()
{
    QTest::addColumn<QString>("held");
    for (const char* held :
         {"ServiceLogin", "GenerateApiKeyByDescription", "UserLogin", "SimpleSearchAcrossCatalogs",
          "/Thumbnails/", "GetConfigInfo", "GetConfigParams", "GetDownload2D", "/Downloads/"})
        QTest::newRow(held) << held;
}

void RoadTest::theLibraryMayGoWhileAReplyIsOnItsWay()
{
    QFETCH(const QString, held);
    m_road->hold(held);
    const std::vector<std::function<void()>> steps{
        [this] { m_road->connect(); },         [this] { m_road->logIn(); },
        [this] { m_road->searchFor("bolt"); }, [this] { m_road->waitForResults(); },
        [this] { m_road->openPart(0); },       [this] { m_road->clickPreview(); },
    };
    for (const auto& step : steps) {
        if (!m_road->isHeld())
            step();
    }
    QTRY_VERIFY_WITH_TIMEOUT(m_road->isHeld(), patience);

    QVERIFY(m_road->library().disconnect());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(m_road->host().references().outstanding(), 0);
    QVERIFY(m_road->library().unload());
    m_road->release();
    m_road->stopCatalog();
    QVERIFY(m_road->view().prompts().empty());
    QCOMPARE(test::RoadFixture::files(), QStringList());
}

QTEST_MAIN(RoadTest)
#include "RoadTest.moc"
