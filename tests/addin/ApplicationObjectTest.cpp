#include "addin/AddInSlot.h"
#include "addin/DockWidgetApplication.h"
#include "addin/EntryPoints.h"
#include "common/HostString.h"
#include "dev/host/model/HostApplication.h"
#include "panel/DownloadedFile.h"
#include "service/SessionValues.h"
#include "tests/host/ScriptedHostView.h"
#include "tests/support/FatalWarnings.h"
#include "tests/support/ScriptedCatalog.h"

#include <QApplication>
#include <QTabWidget>
#include <QTest>

#include <memory>

static_assert(!std::has_virtual_destructor_v<DockWidgetApplication>);
static_assert(std::is_base_of_v<pvCommandEvents_c, DockWidgetApplication>);

/// The application object and the values of the process, from inside. The functions run in their order: the
/// first sees the process before any connect.
class ApplicationObjectTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void whatOutlivesADisconnect();
    void aCopySharesHandlesAndPane();
    void stringsGoBothWays();

private:
    int visible() const { return m_view->paneWidget() != nullptr && m_view->paneWidget()->isVisible(); }

    std::unique_ptr<test::FatalWarnings> m_warnings;
    std::unique_ptr<test::ScriptedCatalog> m_catalog;
    std::unique_ptr<test::ScriptedHostView> m_view;
    std::shared_ptr<devhost::HostApplication> m_host;
};

void ApplicationObjectTest::init()
{
    m_warnings = std::make_unique<test::FatalWarnings>();
    m_catalog = std::make_unique<test::ScriptedCatalog>();
    m_view = std::make_unique<test::ScriptedHostView>();
    m_host = std::make_shared<devhost::HostApplication>(*m_view);
}

void ApplicationObjectTest::cleanup()
{
    QVERIFY(disconnectFromPlotvane());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(m_host->references().outstanding(), 0);
    QCOMPARE(m_host->references().errors(), QStringList());
    QCOMPARE(QApplication::allWidgets(), QWidgetList());
    m_host.reset();
    m_view.reset();
    m_catalog.reset();
    m_warnings.reset();
}

void ApplicationObjectTest::whatOutlivesADisconnect()
{
    const AddInSlot& slot = GetAddInSlot();
    QCOMPARE(&slot, &GetAddInSlot());
    QVERIFY(slot.application == nullptr && slot.applicationID == pvString());
    QVERIFY(HasSignedByPlotvane(nullptr, nullptr, nullptr, nullptr));
    pvString identifier;
    QVERIFY(HasSignedByPlotvane(&identifier, nullptr, nullptr, nullptr));
    QVERIFY(identifier == DockWidgetApplication::appID);

    QVERIFY(connectToPlotvane(77, m_host.get()));
    QVERIFY(DockWidgetApplication::GetLogInPage() == nullptr); // never handed out
    QVERIFY(slot.application == m_host.get());
    QVERIFY(slot.applicationID == DockWidgetApplication::appID);
    QVERIFY(!connectToPlotvane(0, nullptr));
    QVERIFY(slot.application == m_host.get()); // a refused connect rewrites nothing

    ApiKey = "key";
    UserToken = "token";
    SearchTerm = "term";
    CurrentPageNumber = "3";
    g_downloadCounter = 5;
    QVERIFY(disconnectFromPlotvane());
    QVERIFY(slot.application == m_host.get());
    QVERIFY(slot.applicationID == DockWidgetApplication::appID);
    QVERIFY(connectToPlotvane(0, m_host.get()));
    QCOMPARE(ApiKey, QString("key"));
    QCOMPARE(UserToken, QString("token"));
    QCOMPARE(SearchTerm, QString("term"));
    QCOMPARE(CurrentPageNumber, QString("3"));
    QCOMPARE(g_downloadCounter, 5);

    QVERIFY(disconnectFromPlotvane());
    QVERIFY(connectToPlotvane(0, nullptr));
    QVERIFY(slot.application == nullptr);
    QVERIFY(!connectToPlotvane(0, m_host.get()));
}

void ApplicationObjectTest::aCopySharesHandlesAndPane()
{
    {
        DockWidgetApplication empty(nullptr);
        QVERIFY(empty.ExecuteNotify()); // without a pane
        empty.unLoadTranslator();       // without one
        DockWidgetApplication first(m_host.get());
        QVERIFY(first.createDockWidget());
        QCOMPARE(m_host->references().outstanding(), 2); // the application and the pane
        DockWidgetApplication second(first);
        QCOMPARE(m_host->references().outstanding(), 4);
        empty = second;
        empty = *&empty;
        QCOMPARE(m_host->references().outstanding(), 6);
        QCOMPARE(m_host->references().errors(), QStringList());

        QVERIFY(DockWidgetApplication::ExecuteNotifyHook(static_cast<pvCommandEvents_c*>(&empty)));
        QVERIFY(!visible());
        QVERIFY(second.ExecuteNotify());
        QVERIFY(visible());
        QVERIFY(empty.GetPVApp().get() == m_host.get());
    }
    // Each of them destroys the pane that they share.
    QCOMPARE(m_host->journal().lines().count("CustomPropertyControl.Destroy()"), 3);
    QVERIFY(m_view->paneWidget() == nullptr);
}

void ApplicationObjectTest::stringsGoBothWays()
{
    const QString beyondTheBasicPlane = QString::fromUtf8("ü 部品 𝔄");
    QCOMPARE(toQString(toPVString(QString())), QString(""));
    QCOMPARE(toQString(toPVString(beyondTheBasicPlane)), beyondTheBasicPlane);
    QCOMPARE(toQString(toPVString(QString::fromLatin1("a\0b", 3))), QString("a"));
}

QTEST_MAIN(ApplicationObjectTest)
#include "ApplicationObjectTest.moc"
