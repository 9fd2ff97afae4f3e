#include "panel/LogInPage.h"
#include "service/DataStorage.h"
#include "service/SessionValues.h"
#include "tests/panel/PanelFixture.h"

#include <QPointer>
#include <QPushButton>
#include <QTest>

#include <algorithm>
#include <functional>

using test::ConfigInfoOperationName;
using test::ConfigParamsOperationName;
using test::DownloadOperationName;
using test::PanelFixture;
using test::ScriptedReply;
using test::SearchOperationName;

using Step = std::function<void()>;
Q_DECLARE_METATYPE(Step)

// Outside of any namespace, as Qt wants it.

static void setBundle(bool there)
{
    if (there)
        Q_INIT_RESOURCE(DockWidget_3DPH);
    else
        Q_CLEANUP_RESOURCE(DockWidget_3DPH);
}

/// The gate that replies pass, which this program has once more outside the bundle.
static void setGate(bool there)
{
    if (there)
        Q_INIT_RESOURCE(OwnGate);
    else
        Q_CLEANUP_RESOURCE(OwnGate);
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
    /// Waits until so many sessions have come to their key; each of their two replies leaves a debug line.
    void waitForSessions(int count)
    {
        QTRY_COMPARE(m_panel->warnings().debugLines().filter("data").size(), 2 * count);
    }
    void compareBox(const QString& file);
    /// The next request is one that is made now, and the stored values are as before.
    void compareNothingSent(int requestsBefore);
    /// @return how many requests there were, pictures aside, which may come late.
    int requests() const;

    std::unique_ptr<PanelFixture> m_panel;
    std::unique_ptr<DataStorage> m_session;
};

void BundleTest::init()
{
    m_panel = std::make_unique<PanelFixture>();
    m_session = std::make_unique<DataStorage>();
    waitForSessions(2);
}

void BundleTest::cleanup()
{
    setBundle(true);
    setGate(true);
    m_session.reset();
    m_panel.reset();
}

void BundleTest::compareBox(const QString& file)
{
    QTRY_COMPARE(m_panel->boxTexts(), QStringList("Cannot open xml file: :/3DPH/" + file));
    const test::SeenMessageBox& box = m_panel->answerer().boxes().first();
    QCOMPARE(box.title, QString("Error"));
    QCOMPARE(box.icon, QMessageBox::Critical);
    QCOMPARE(box.buttons, QMessageBox::Ok);
    QCOMPARE(box.flags & Qt::WindowType_Mask, Qt::Dialog);
    QVERIFY(box.flags.testFlag(Qt::MSWindowsFixedSizeDialogHint));
    QVERIFY(!box.hasParent && box.isModal && !box.quitOnClose);
    QCOMPARE(box.styleSheet, QString());
}

void BundleTest::compareNothingSent(int requestsBefore)
{
    m_panel->service().setReply("ServiceLogin", ScriptedReply::never());
    m_session->ServiceLogin();
    QTRY_VERIFY(requests() > requestsBefore);
    QCOMPARE(requests(), requestsBefore + 1);
    QCOMPARE(ApiKey, QString("key"));
    QCOMPARE(UserToken, QString("token"));
}

int BundleTest::requests() const
{
    const auto& all = m_panel->service().requests();
    return static_cast<int>(std::count_if(all.begin(), all.end(), [](const test::RecordedRequest& request) {
        return !request.operation().isEmpty();
    }));
}

void BundleTest::missingFiles_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<Step>("approach");
    QTest::addColumn<Step>("step");
    QTest::addColumn<QString>("held"); // operation whose reply comes without the bundle
    const auto add = [](const char* name, const char* file, const Step& approach, const Step& step,
                        const QString& held = QString()) {
        QTest::newRow(name) << QString(file) << approach << step << held;
    };
    const Step stay = [] {};
    const Step results = [this] { m_panel->showResults(); };
    const Step part = [this] { m_panel->openFirstPart(); };
    const Step login = [this] {
        auto* page = new LogInPage(&m_panel->host(), &m_panel->window());
        waitForSessions(3);
        m_panel->window().setCurrentIndex(m_panel->window().addTab(page, "Log In"));
    };
    const Step startSession = [this] { m_session->ServiceLogin(); };
    const Step search = [this] { m_panel->searchFor("bolt"); };
    const Step turnPage = [this] { m_panel->click("pushButton2"); };
    const Step goBack = [this] { m_panel->click("pushButton"); };
    const Step open = [this] { m_panel->clickThumbnail(0); };
    const Step download = [this] { m_panel->clickPreview(); };
    const Step logIn = [this] {
        QTest::mouseClick(m_panel->window().findChild<QPushButton*>("LogIn_pushButton"), Qt::LeftButton);
    };
    add("session", "TokenXMLFile.xml", stay, startSession);
    add("session's reply", "output.xml", stay, startSession, "ServiceLogin");
    add("key", "APIKeyXML.xml", stay, startSession, "ServiceLogin");
    add("key's reply", "output.xml", stay, startSession, "GenerateApiKeyByDescription");
    add("search", "Searchcatalog.xml", stay, search);
    add("page", "Searchcatalog.xml", results, turnPage);
    add("back", "Searchcatalog.xml", part, goBack);
    add("open", "ConfigInfo.xml", results, open);
    add("information", "output.xml", results, open, ConfigInfoOperationName);
    add("parameters asked for", "ConfigParams.xml", results, open, ConfigInfoOperationName);
    add("parameters", "output.xml", results, open, ConfigParamsOperationName);
    add("download", "download.xml", part, download);
    add("address", "output.xml", part, download, DownloadOperationName);
    add("login", "Login.xml", login, logIn);
    add("login's reply", "output.xml", login, logIn, "UserLogin");
}

void BundleTest::missingFiles()
{
    QFETCH(QString, file);
    QFETCH(Step, approach);
    QFETCH(Step, step);
    QFETCH(QString, held);
    test::ScriptedService& service = m_panel->service();
    m_panel->offerDrawing("/part.dwg", ScriptedReply::xml("drawing"));
    service.setReply(ConfigParamsOperationName, ScriptedReply::never()); // or it comes too late
    if (!held.isEmpty())
        service.setReply(held, ScriptedReply::xml("<r/>").held());
    approach();
    if (!held.isEmpty()) {
        step();
        QTRY_COMPARE(service.heldCount(), 1);
    }
    const int requestsBefore = requests();
    setBundle(false);
    setGate(file != "output.xml");
    m_panel->closePaneWithNextBox();
    if (held.isEmpty())
        step();
    else
        service.releaseAll();
    compareBox(file);
    QVERIFY(!m_panel->isPaneOpen());
    QVERIFY(m_panel->files().isEmpty());
    setBundle(true);
    compareNothingSent(requestsBefore);
}

/// While the box says that a part cannot be opened, a late reply replaces the row that was clicked.
void BundleTest::rowGoesUnderItsBox()
{
    m_panel->showResults();
    m_panel->service().setReply(SearchOperationName, ScriptedReply::xml("<r/>").held());
    m_panel->click("pushButton2");
    QTRY_COMPARE(m_panel->service().heldCount(), 1);
    setBundle(false);
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
