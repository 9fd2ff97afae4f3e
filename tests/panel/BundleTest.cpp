#include "panel/LogInPage.h"
#include "tests/panel/PanelFixture.h"

#include <QPointer>
#include <QPushButton>
#include <QtTest>

using test::ConfigInfoOperationName;
using test::ConfigParamsOperationName;
using test::DownloadOperationName;
using test::PanelFixture;
using test::ScriptedReply;
using test::SearchOperationName;

using Step = void (*)(PanelFixture&);
Q_DECLARE_METATYPE(Step)

// Outside of any namespace, as Qt wants it.
static void dropBundle()
{
    Q_CLEANUP_RESOURCE(DockWidget_3DPH);
}

static void restoreBundle()
{
    Q_INIT_RESOURCE(DockWidget_3DPH);
}

/// Waits until so many sessions have come to their key; each of their two replies leaves a debug line.
static void waitForSessions(PanelFixture& panel, int count)
{
    QTRY_COMPARE(panel.warnings().debugLines().filter("data").size(), 2 * count);
}

/// When the resource bundle does not answer, the pages say so, and bear that the pane goes under the message.
class BundleTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void missingFiles_data();
    void missingFiles();
    void rowGoesUnderItsBox();

private:
    std::unique_ptr<PanelFixture> m_panel;
};

void BundleTest::init()
{
    m_panel = std::make_unique<PanelFixture>();
    waitForSessions(*m_panel, 1);
}

void BundleTest::cleanup()
{
    restoreBundle();
    m_panel.reset();
}

void BundleTest::missingFiles_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<Step>("approach");
    QTest::addColumn<Step>("step");
    QTest::addColumn<QString>("held"); // operation whose reply comes without the bundle
    const auto add = [](const char* name, const char* file, Step approach, Step step,
                        const QString& held = QString()) {
        QTest::newRow(name) << QString(file) << approach << step << held;
    };
    const Step stay = [](PanelFixture&) {};
    const Step results = [](PanelFixture& panel) { panel.showResults(); };
    const Step part = [](PanelFixture& panel) { panel.openFirstPart(); };
    const Step login = [](PanelFixture& panel) {
        auto* page = new LogInPage(&panel.host(), &panel.window());
        waitForSessions(panel, 2);
        panel.window().setCurrentIndex(panel.window().addTab(page, "Log In"));
    };
    const Step search = [](PanelFixture& panel) { panel.searchFor("bolt"); };
    const Step turnPage = [](PanelFixture& panel) { panel.click("pushButton2"); };
    const Step goBack = [](PanelFixture& panel) { panel.click("pushButton"); };
    const Step open = [](PanelFixture& panel) { panel.clickThumbnail(0); };
    const Step download = [](PanelFixture& panel) { panel.clickPreview(); };
    const Step logIn = [](PanelFixture& panel) {
        QTest::mouseClick(panel.window().findChild<QPushButton*>("LogIn_pushButton"), Qt::LeftButton);
    };
    add("search", "Searchcatalog.xml", stay, search);
    add("page", "Searchcatalog.xml", results, turnPage);
    add("back", "Searchcatalog.xml", part, goBack);
    add("open", "ConfigInfo.xml", results, open);
    add("information", "output.xml", results, open, ConfigInfoOperationName);
    add("parameters", "output.xml", results, open, ConfigParamsOperationName);
    add("download", "download.xml", part, download);
    add("address", "output.xml", part, download, DownloadOperationName);
    add("login", "Login.xml", login, logIn);
}

void BundleTest::missingFiles()
{
    QFETCH(QString, file);
    QFETCH(Step, approach);
    QFETCH(Step, step);
    QFETCH(QString, held);
    m_panel->offerDrawing("/part.dwg", ScriptedReply::xml("drawing"));
    m_panel->service().setReply(ConfigParamsOperationName, ScriptedReply::never()); // or it comes too late
    if (!held.isEmpty())
        m_panel->service().setReply(held, ScriptedReply::xml("<r/>").held());
    approach(*m_panel);
    if (!held.isEmpty()) {
        step(*m_panel);
        QTRY_COMPARE(m_panel->service().heldCount(), 1);
    }
    dropBundle();
    m_panel->closePaneWithNextBox();
    if (held.isEmpty())
        step(*m_panel);
    else
        m_panel->service().releaseAll();
    QTRY_COMPARE(m_panel->boxTexts(), QStringList("Cannot open xml file: :/3DPH/" + file));
    QVERIFY(!m_panel->isPaneOpen());
    QVERIFY(m_panel->files().isEmpty());
}

/// While the box says that a part cannot be opened, a late reply replaces the row that was clicked.
void BundleTest::rowGoesUnderItsBox()
{
    m_panel->showResults();
    m_panel->service().setReply(SearchOperationName, ScriptedReply::xml("<r/>").held());
    m_panel->click("pushButton2");
    QTRY_COMPARE(m_panel->service().heldCount(), 1);
    dropBundle();
    const QPointer<QWidget> row = m_panel->row(0);
    QObject::connect(&m_panel->answerer(), &test::MessageBoxAnswerer::opened, &m_panel->window(), [&] {
        m_panel->service().releaseAll();
        QTRY_VERIFY(row.isNull());
    });
    m_panel->clickThumbnail(0);
    QCOMPARE(m_panel->boxTexts(), QStringList("Cannot open xml file: :/3DPH/ConfigInfo.xml"));
    QCoreApplication::processEvents();
    QCOMPARE(m_panel->shownPages(), QStringList("PartHarbor_2D"));
}

QTEST_MAIN(BundleTest)
#include "BundleTest.moc"
