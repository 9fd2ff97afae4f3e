#include "panel/PV3DPartHarbor_2D.h"
#include "panel/PartHarbor_2D.h"
#include "service/SessionValues.h"
#include "tests/panel/PanelFixture.h"

#include <QLayout>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using test::PanelFixture;
using test::SearchOperationName;

namespace
{

const QString NoKeyText = "Server was unable to process request. Invalid key string.";

/// A host's tabs that destroy what is in one of them when they are asked for a layout.
class ClosingHost : public QObject
{
public:
    ClosingHost(QTabWidget& tabs, QWidget* pane) : m_pane(pane) { tabs.installEventFilter(this); }
    bool hasClosed() const { return m_pane.isNull(); }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::LayoutRequest)
            delete m_pane;
        return false;
    }

private:
    QPointer<QWidget> m_pane;
};

} // namespace

/// The way between the pages, and the page numbers that are asked for.
class NavigationTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_panel = std::make_unique<PanelFixture>(); }
    void cleanup() { m_panel.reset(); }

    void emptyTermIsRefused();
    void blanksAreSearchedFor();
    void roundTripKeepsItsPages();
    void pageNumbers_data();
    void pageNumbers();
    void pressingElsewhereDoesNotCount();
    void pageIsKeptAcrossSearches();
    void searchNeedsAKey();
    void searchLineOutlivesItsKey();
    void panelSwallowsItsEvents();
    void hostClosesThePaneAsItLaysOut_data();
    void hostClosesThePaneAsItLaysOut();

private:
    void clickBack() { m_panel->click("pushButton"); }
    QStringList bar() const;

    std::unique_ptr<PanelFixture> m_panel;
};

/// @return the texts of the page bar, a disabled one in brackets.
QStringList NavigationTest::bar() const
{
    QStringList texts;
    for (const char* name : {"prev_pushButton", "pushButton1", "pushButton2", "pushButton3", "pushButton4",
                             "pushButton5", "pushButton6", "pushButton7", "next_pushButton"}) {
        const auto* button = m_panel->shown<QPushButton>(name);
        texts.append(button->isEnabled() ? button->text() : '[' + button->text() + ']');
    }
    return texts;
}

void NavigationTest::emptyTermIsRefused()
{
    QTest::keyClick(m_panel->shown<QLineEdit>("SearchLine"), Qt::Key_Return);
    m_panel->click("SearchButton");
    QCOMPARE(m_panel->boxTexts(), QStringList({"Please enter Search string", "Please enter Search string"}));
    QCOMPARE(m_panel->shownPages(), QStringList("PV3DPartHarbor_2D"));
    QVERIFY(m_panel->service().requests(SearchOperationName).isEmpty());
}

void NavigationTest::blanksAreSearchedFor()
{
    m_panel->searchFor("  ");
    QCOMPARE(SearchTerm, QString("  "));
    QTRY_COMPARE(m_panel->service().requests(SearchOperationName).size(), 1);
    QVERIFY(m_panel->service().requests(SearchOperationName)[0].body.contains("<searchTerm>  </searchTerm>"));
    QVERIFY(m_panel->boxTexts().isEmpty());
}

void NavigationTest::roundTripKeepsItsPages()
{
    QList<QPointer<QWidget>> pages;
    const auto remember = [this, &pages] {
        for (QWidget* page :
             m_panel->container()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (page->isVisible() && !pages.contains(page)) {
                pages.append(page);
                QVERIFY(m_panel->container()->layout()->indexOf(page) >= 0);
            }
        }
    };
    remember();
    auto* layout = m_panel->container()->layout();
    QWidget* const mainPanel = m_panel->shown<QWidget>("PartHarbor_2DMain");
    const int place = layout->indexOf(mainPanel);
    const QRect geometry = mainPanel->geometry();
    const int count = layout->count();
    m_panel->showResults();
    remember();
    QCOMPARE(layout->indexOf(mainPanel), -1); // replaced, while later pages are appended
    QCOMPARE(layout->indexOf(pages.last()), place);
    QCOMPARE(layout->count(), count);
    m_panel->openPart(0);
    remember();
    QCOMPARE(m_panel->shownPages(), QStringList("PreviewUI"));
    for (int round = 2; round < 4; ++round) {
        clickBack();
        QCOMPARE(m_panel->shownPages(), QStringList("PartHarbor_2D"));
        QTRY_VERIFY(m_panel->row(0) != nullptr); // the search is repeated
        QCOMPARE(m_panel->sent(SearchOperationName, "searchTerm").count("bolt"), round);
        remember();
        m_panel->openPart(round);
        QCOMPARE(m_panel->shownPages(), QStringList("PreviewUI"));
        remember();
    }
    clickBack();
    clickBack();
    remember();
    QCOMPARE(m_panel->shownPages(), QStringList("PV3DPartHarbor_2D"));
    QVERIFY(m_panel->shown<QLineEdit>("SearchLine")->text().isEmpty());  // a new panel
    QTRY_COMPARE(m_panel->service().requests("ServiceLogin").size(), 2); // and a new session
    QVERIFY(!pages.contains(nullptr));
    QCOMPARE(layout->count(), count); // those that were left take no part in it
    QCOMPARE(m_panel->shown<QWidget>("PartHarbor_2DMain")->geometry(), geometry);

    m_panel->closePane();
    QCOMPARE(pages.count(nullptr), pages.size());
}

void NavigationTest::pageNumbers_data()
{
    const QStringList untouched{"<", "1", "2", "3", "4", "5", "[...]", "200", ">"};
    const auto jumpedTo = [](const QString& page, const QString& next) {
        return QStringList{"<", "1", "2", "[...]", page, next, "[...]", "200", ">"};
    };
    QTest::addColumn<QStringList>("clicks");
    QTest::addColumn<QStringList>("asked");
    QTest::addColumn<QStringList>("bar");
    const QString prev = "prev_pushButton";
    const QString next = "next_pushButton";
    QTest::addRow("first") << QStringList{} << QStringList{"1"} << untouched;
    QTest::addRow("3") << QStringList{"pushButton3"} << QStringList{"1", "3"} << untouched;
    QTest::addRow("200") << QStringList{"pushButton7"} << QStringList{"1", "200"} << untouched;
    QTest::addRow("200 > >") << QStringList{"pushButton7", next, next}
                             << QStringList{"1", "200", "201", "202"} << jumpedTo("201", "202");
    QTest::addRow("200 < 200") << QStringList{"pushButton7", prev, "pushButton7"}
                               << QStringList{"1", "200", "199", "200"} << jumpedTo("199", "200");
    QTest::addRow("< <") << QStringList{prev, prev} << QStringList{"1", "0", "-1"} << jumpedTo("-1", "0");
    QTest::addRow("5 >") << QStringList{"pushButton5", next} << QStringList{"1", "5", "6"}
                         << jumpedTo("6", "7");
    QTest::addRow("5 > fifth") << QStringList{"pushButton5", next, "pushButton5"}
                               << QStringList{"1", "5", "6", "7"} << jumpedTo("6", "7");
    QTest::addRow("5 > 2 >") << QStringList{"pushButton5", next, "pushButton2", next}
                             << QStringList{"1", "5", "6", "2", "3"} << jumpedTo("3", "4");
    QTest::addRow("dots") << QStringList{prev, "pushButton6", "pushButton3", "pushButton1"}
                          << QStringList{"1", "0", "1"} << jumpedTo("0", "1");
}

void NavigationTest::pageNumbers()
{
    QFETCH(QStringList, clicks);
    QFETCH(QStringList, asked);
    m_panel->showResults();
    for (const QString& button : clicks)
        m_panel->click(button);
    QTRY_COMPARE(m_panel->service().requests(SearchOperationName).size(), asked.size());
    QStringList numbers = m_panel->sent(SearchOperationName, "pageNumber");
    numbers.sort(); // each request has a connection of its own
    asked.sort();
    QCOMPARE(numbers, asked);
    QTEST(bar(), "bar");
    if (!clicks.isEmpty())
        QCOMPARE(LastPageButton, m_panel->shown<QPushButton>(clicks.last()));
}

void NavigationTest::pressingElsewhereDoesNotCount()
{
    m_panel->showResults();
    // Both have the same id. The press on one of them is abandoned.
    auto* previous = m_panel->shown<QPushButton>("prev_pushButton");
    QTest::mousePress(previous, Qt::LeftButton);
    QTest::mouseRelease(previous, Qt::LeftButton, Qt::NoModifier, QPoint(-50, -50));
    m_panel->click("pushButton7");
    QTRY_COMPARE(m_panel->service().requests(SearchOperationName).size(), 2);
    QTest::keyClick(previous, Qt::Key_Space);
    QTRY_COMPARE(m_panel->sent(SearchOperationName, "pageNumber"), (QStringList{"1", "200", "199"}));
}

void NavigationTest::pageIsKeptAcrossSearches()
{
    m_panel->showResults();
    m_panel->click("pushButton4");
    QTRY_COMPARE(m_panel->service().requests(SearchOperationName).size(), 2);
    clickBack();
    m_panel->searchFor("nut");
    QTRY_COMPARE(m_panel->sent(SearchOperationName, "pageNumber"), (QStringList{"1", "4", "4"}));
    QCOMPARE(m_panel->sent(SearchOperationName, "searchTerm").last(), QString("nut"));
}

void NavigationTest::searchNeedsAKey()
{
    m_panel->service().setReply("GenerateApiKeyByDescription", test::ScriptedReply::fault("no"));
    QTRY_COMPARE(m_panel->service().requests("GenerateApiKeyByDescription").size(), 1);
    ApiKey.clear();
    m_panel->searchFor("bolt");
    QCOMPARE(m_panel->boxTexts(), QStringList(NoKeyText));
    QCOMPARE(m_panel->shownPages(), QStringList("PartHarbor_2D"));
    m_panel->click("pushButton2");
    QCOMPARE(m_panel->boxTexts(), QStringList({NoKeyText, NoKeyText}));
    QVERIFY(m_panel->service().requests(SearchOperationName).isEmpty());
    QCOMPARE(CurrentPageNumber, QString("2"));
}

/// Qt goes on with the line edit once the box that Return opened has been closed.
void NavigationTest::searchLineOutlivesItsKey()
{
    const QPointer<QLineEdit> line(m_panel->shown<QLineEdit>("SearchLine"));
    bool outlived = false;
    connect(&m_panel->answerer(), &test::MessageBoxAnswerer::opened, line, [&] {
        m_panel->closePane();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        outlived = !line.isNull();
    });
    QTest::keyClick(line, Qt::Key_Return);
    QVERIFY(outlived);
    QVERIFY(!m_panel->isPaneOpen());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(line.isNull());
}

void NavigationTest::panelSwallowsItsEvents()
{
    // The handler that no press reaches tells of the left button alone.
    class Panel : public PV3DPartHarbor_2D
    {
    public:
        using PV3DPartHarbor_2D::mousePressEvent;
        using PV3DPartHarbor_2D::PV3DPartHarbor_2D;
    };
    Panel panel(&m_panel->host(), nullptr);
    const QSignalSpy clicks(&panel, SIGNAL(clicked()));
    int told = 0;
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(1, 1), button, button, Qt::NoModifier);
        press.ignore();
        QVERIFY(QCoreApplication::sendEvent(&panel, &press) && press.isAccepted());
        QCOMPARE(clicks.size(), told);
        panel.mousePressEvent(&press);
        told = 1;
        QCOMPARE(clicks.size(), told);
    }
}

void NavigationTest::hostClosesThePaneAsItLaysOut_data()
{
    QTest::addColumn<bool>("opensPart");
    QTest::addRow("results") << false;
    QTest::addRow("detail page") << true;
}

void NavigationTest::hostClosesThePaneAsItLaysOut()
{
    QFETCH(bool, opensPart);
    if (opensPart)
        m_panel->showResults();
    const ClosingHost host(m_panel->window(), m_panel->container());
    if (opensPart)
        m_panel->clickThumbnail(0);
    else
        m_panel->searchFor("bolt");
    QTRY_VERIFY(host.hasClosed());
}

QTEST_MAIN(NavigationTest)
#include "NavigationTest.moc"
