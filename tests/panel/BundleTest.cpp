#include "panel/LogInPage.h"
#include "service/SessionValues.h"
#include "tests/panel/PanelFixture.h"

#include <QPointer>
#include <QPushButton>
#include <QtTest>

using test::configInfoOperation;
using test::configParamsOperation;
using test::downloadOperation;
using test::PanelFixture;
using test::ScriptedReply;
using test::searchOperation;

// Outside of any namespace, as the toolkit wants it.
static void dropBundle()
{
    Q_CLEANUP_RESOURCE(DockWidget_3DPH);
}

static void restoreBundle()
{
    Q_INIT_RESOURCE(DockWidget_3DPH);
}

/// What the pages do when the resource bundle does not answer: they say so, send nothing, and bear that the
/// pane goes under the message.
class BundleTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_panel = std::make_unique<PanelFixture>(); }
    void cleanup();

    void missingFiles_data();
    void missingFiles();
    void rowGoesUnderItsBox();

private:
    void approach(const QString& step);
    void take(const QString& step);
    void waitForSessions(int count);

    std::unique_ptr<PanelFixture> m_panel;
    LogInPage* m_login = nullptr;
};

void BundleTest::cleanup()
{
    restoreBundle();
    m_panel.reset();
}

void BundleTest::missingFiles_data()
{
    QTest::addColumn<QString>("step");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("unsent"); // operation that is not sent
    QTest::addColumn<bool>("close");
    for (const bool close : {false, true}) {
        const char* how = close ? ", pane closes" : "";
        QTest::addRow("search%s", how) << "search"
                                       << "Searchcatalog.xml" << searchOperation << close;
        QTest::addRow("page%s", how) << "page"
                                     << "Searchcatalog.xml"
                                     << "" << close;
        QTest::addRow("back%s", how) << "back"
                                     << "Searchcatalog.xml"
                                     << "" << close;
        QTest::addRow("open%s", how) << "open"
                                     << "ConfigInfo.xml" << configInfoOperation << close;
        QTest::addRow("information%s", how) << "information"
                                            << "output.xml" << configParamsOperation << close;
        QTest::addRow("parameters%s", how) << "parameters"
                                           << "output.xml"
                                           << "" << close;
        QTest::addRow("download%s", how) << "download"
                                         << "download.xml" << downloadOperation << close;
        QTest::addRow("address%s", how) << "address"
                                        << "output.xml"
                                        << "" << close;
        QTest::addRow("login%s", how) << "login"
                                      << "Login.xml"
                                      << "UserLogin" << close;
    }
}

void BundleTest::missingFiles()
{
    QFETCH(QString, step);
    QFETCH(QString, file);
    QFETCH(QString, unsent);
    QFETCH(bool, close);
    waitForSessions(1);
    approach(step);
    dropBundle();
    if (close)
        m_panel->closePaneWithNextBox();
    take(step);
    QTRY_COMPARE(m_panel->boxTexts(), QStringList("Cannot open xml file: :/3DPH/" + file));
    QCOMPARE(m_panel->answerer().boxes()[0].title, QString("Error"));
    QCOMPARE(m_panel->answerer().boxes()[0].icon, QMessageBox::Critical);
    QCOMPARE(m_panel->isPaneOpen(), !close);
    QVERIFY(unsent.isEmpty() || m_panel->service().requests(unsent).isEmpty());
    QVERIFY(m_panel->files().isEmpty());
}

/// While the box says that a part cannot be opened, a late reply replaces the row that was clicked.
void BundleTest::rowGoesUnderItsBox()
{
    waitForSessions(1);
    m_panel->showResults();
    m_panel->service().setReply(searchOperation, ScriptedReply::xml("<r/>").held());
    QTest::mouseClick(m_panel->shown<QPushButton>("pushButton2"), Qt::LeftButton);
    QTRY_COMPARE(m_panel->service().heldCount(), 1);
    dropBundle();
    const QPointer<QWidget> row = m_panel->row(0);
    QObject::connect(&m_panel->answerer(), &test::MessageBoxAnswerer::opened, &m_panel->window(), [&] {
        m_panel->service().releaseAll();
        QTRY_VERIFY(row.isNull());
    });
    QTest::mouseClick(row->findChild<QPushButton*>("iconpushButton"), Qt::LeftButton);
    QCOMPARE(m_panel->boxTexts(), QStringList("Cannot open xml file: :/3DPH/ConfigInfo.xml"));
    QCoreApplication::processEvents();
    QCOMPARE(m_panel->shownPages(), QStringList("PartHarbor_2D"));
}

/// Waits until so many sessions have come to their key; each of their two replies leaves a debug line.
void BundleTest::waitForSessions(int count)
{
    QTRY_COMPARE(m_panel->warnings().debugLines().filter("data").size(), 2 * count);
}

/// Comes to where the step can be taken.
void BundleTest::approach(const QString& step)
{
    m_panel->offerDrawing("/part.dwg", ScriptedReply::xml("drawing"));
    m_panel->service().setReply(configParamsOperation, ScriptedReply::never()); // or it comes too late
    const QHash<QString, QString> heldBefore{{"information", configInfoOperation},
                                             {"parameters", configParamsOperation},
                                             {"address", downloadOperation}};
    if (heldBefore.contains(step))
        m_panel->service().setReply(heldBefore[step], ScriptedReply::xml("<r/>").held());

    if (step == "login") {
        m_login = new LogInPage(&m_panel->host(), &m_panel->window());
        waitForSessions(2);
        m_panel->window().setCurrentIndex(m_panel->window().addTab(m_login, "Log In"));
    } else if (step == "page" || step == "open" || step == "information") {
        m_panel->showResults();
    } else if (step != "search") {
        m_panel->openFirstPart();
    }
    if (step == "information")
        QTest::mouseClick(m_panel->row(0)->findChild<QPushButton*>("iconpushButton"), Qt::LeftButton);
    else if (step == "address")
        m_panel->clickPreview();
    if (heldBefore.contains(step))
        QTRY_COMPARE(m_panel->service().heldCount(), 1);
}

void BundleTest::take(const QString& step)
{
    const auto click = [this](const char* button) {
        QTest::mouseClick(m_panel->shown<QPushButton>(button), Qt::LeftButton);
    };
    if (step == "search")
        m_panel->searchFor("bolt");
    else if (step == "page")
        click("pushButton2");
    else if (step == "back")
        click("pushButton");
    else if (step == "open")
        QTest::mouseClick(m_panel->row(0)->findChild<QPushButton*>("iconpushButton"), Qt::LeftButton);
    else if (step == "download")
        m_panel->clickPreview();
    else if (step == "login")
        QTest::mouseClick(m_login->findChild<QPushButton*>("LogIn_pushButton"), Qt::LeftButton);
    else
        m_panel->service().releaseAll();
}

QTEST_MAIN(BundleTest)
#include "BundleTest.moc"
