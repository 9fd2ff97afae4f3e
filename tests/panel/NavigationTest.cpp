#include "panel/PV3DPartHarbor_2D.h"
#include "panel/PartHarbor_2D.h"
#include "service/SessionValues.h"
#include "tests/panel/PanelFixture.h"
#include "tests/support/CannedReplies.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QtTest>

using test::PanelFixture;
using test::searchOperation;

namespace
{

const QString noKeyText = "Server was unable to process request. Invalid key string.";

} // namespace

/// The way between the pages, and the page numbers that are asked for.
class NavigationTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { m_panel = std::make_unique<PanelFixture>(); }
    void cleanup() { m_panel.reset(); }

    void emptyTermIsRefused();
    void blanksAreSearchedFor();
    void searchButtonSearches();
    void roundTripKeepsItsPages();
    void pagesTakeTheirPlaceInTheLayout();
    void pageNumbers_data();
    void pageNumbers();
    void dotsCannotBeClicked();
    void pressingElsewhereDoesNotCount();
    void pageIsKeptAcrossSearches();
    void lastPageButtonIsKept();
    void searchNeedsAKey();
    void paneMayCloseUnderABox_data();
    void paneMayCloseUnderABox();
    void searchLineOutlivesItsKey();
    void panelSwallowsItsEvents();

private:
    void click(const QString& button)
    {
        QTest::mouseClick(m_panel->shown<QPushButton>(button), Qt::LeftButton);
    }
    void clickBack() { click("pushButton"); }
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

/// The values of the process, before any page has been there.
void NavigationTest::initTestCase()
{
    QCOMPARE(CurrentPageNumber, QString("1"));
    QCOMPARE(SearchTerm, QString());
    QCOMPARE(ApiKey, QString());
    QVERIFY(LastPageButton.isNull());
}

void NavigationTest::emptyTermIsRefused()
{
    QTest::keyClick(m_panel->shown<QLineEdit>("SearchLine"), Qt::Key_Return);
    click("SearchButton");
    QCOMPARE(m_panel->answerer().boxes().size(), 2);
    for (const test::SeenMessageBox& box : m_panel->answerer().boxes()) {
        QCOMPARE(box.text, QString("Please enter Search string"));
        QCOMPARE(box.title, QString("Error"));
        QCOMPARE(box.icon, QMessageBox::Critical);
        QCOMPARE(box.buttons, QMessageBox::Ok);
        QVERIFY(!box.hasParent && !box.quitOnClose);
    }
    QCOMPARE(m_panel->shownPages(), QStringList("PV3DPartHarbor_2D"));
    QVERIFY(m_panel->service().requests(searchOperation).isEmpty());
}

void NavigationTest::blanksAreSearchedFor()
{
    m_panel->searchFor("  ");
    QCOMPARE(SearchTerm, QString("  "));
    QTRY_COMPARE(m_panel->service().requests(searchOperation).size(), 1);
    QVERIFY(m_panel->service().requests(searchOperation)[0].body.contains("<searchTerm>  </searchTerm>"));
    QVERIFY(m_panel->boxTexts().isEmpty());
}

void NavigationTest::searchButtonSearches()
{
    QTest::keyClicks(m_panel->shown<QLineEdit>("SearchLine"), "Mutter M8 & \"Co\" <x>");
    click("SearchButton");
    QCOMPARE(m_panel->shownPages(), QStringList("PartHarbor_2D"));
    QTRY_COMPARE(m_panel->sent(searchOperation, "searchTerm"), QStringList("Mutter M8 & \"Co\" <x>"));
    QCOMPARE(m_panel->sent(searchOperation, "apiKey"), QStringList("key"));
}

void NavigationTest::roundTripKeepsItsPages()
{
    QList<QPointer<QWidget>> pages;
    const auto remember = [this, &pages] {
        for (QWidget* page :
             m_panel->container()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (page->isVisible() && !pages.contains(page))
                pages.append(page);
        }
    };
    remember();
    m_panel->openFirstPart();
    remember();
    QCOMPARE(m_panel->shownPages(), QStringList("PreviewUI"));
    for (int round = 2; round < 4; ++round) {
        clickBack();
        QCOMPARE(m_panel->shownPages(), QStringList("PartHarbor_2D"));
        QTRY_VERIFY(m_panel->row(0) != nullptr); // the search is repeated
        QCOMPARE(m_panel->sent(searchOperation, "searchTerm").count("bolt"), round);
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

    m_panel->closePane();
    QCOMPARE(pages.count(nullptr), pages.size());
}

void NavigationTest::pagesTakeTheirPlaceInTheLayout()
{
    auto* layout = qobject_cast<QGridLayout*>(m_panel->container()->layout());
    const auto shownPage = [this] {
        return m_panel->container()->findChild<QWidget*>(
            m_panel->shown<QPushButton>("pushButton1") != nullptr ? "PartHarbor_2D" : "PartHarbor_2DMain");
    };
    QWidget* const panel = shownPage();
    const int place = layout->indexOf(panel);
    const int count = layout->count();
    m_panel->showResults();
    QWidget* const results = shownPage();
    QCOMPARE(layout->indexOf(panel), -1);
    QCOMPARE(layout->indexOf(results), place);
    QCOMPARE(layout->count(), count);

    m_panel->openPart(0);
    QVERIFY(layout->indexOf(results) >= 0); // stays, hidden
    clickBack();
    clickBack();
    QCOMPARE(layout->count(), count + 3);
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
}

void NavigationTest::pageNumbers()
{
    QFETCH(QStringList, clicks);
    QFETCH(QStringList, asked);
    m_panel->showResults();
    for (const QString& button : clicks)
        click(button);
    QTRY_COMPARE(m_panel->service().requests(searchOperation).size(), asked.size());
    QStringList numbers = m_panel->sent(searchOperation, "pageNumber");
    numbers.sort(); // each request has a connection of its own
    asked.sort();
    QCOMPARE(numbers, asked);
    QTEST(bar(), "bar");
}

void NavigationTest::dotsCannotBeClicked()
{
    m_panel->showResults();
    click("prev_pushButton"); // makes the third button dots too
    QTRY_COMPARE(m_panel->service().requests(searchOperation).size(), 2);
    click("pushButton6");
    click("pushButton3");
    click("pushButton1");
    QTRY_COMPARE(m_panel->service().requests(searchOperation).size(), 3);
    QCOMPARE(m_panel->sent(searchOperation, "pageNumber"), (QStringList{"1", "0", "1"}));
}

void NavigationTest::pressingElsewhereDoesNotCount()
{
    m_panel->showResults();
    // Both have the same id. The press on one of them is abandoned.
    auto* previous = m_panel->shown<QPushButton>("prev_pushButton");
    QTest::mousePress(previous, Qt::LeftButton);
    QTest::mouseRelease(previous, Qt::LeftButton, Qt::NoModifier, QPoint(-50, -50));
    click("pushButton7");
    QTRY_COMPARE(m_panel->service().requests(searchOperation).size(), 2);
    QTest::keyClick(previous, Qt::Key_Space);
    QTRY_COMPARE(m_panel->sent(searchOperation, "pageNumber"), (QStringList{"1", "200", "199"}));
}

void NavigationTest::pageIsKeptAcrossSearches()
{
    m_panel->showResults();
    click("pushButton4");
    QTRY_COMPARE(m_panel->service().requests(searchOperation).size(), 2);
    clickBack();
    m_panel->searchFor("nut");
    QTRY_COMPARE(m_panel->sent(searchOperation, "pageNumber"), (QStringList{"1", "4", "4"}));
    QCOMPARE(m_panel->sent(searchOperation, "searchTerm").last(), QString("nut"));
}

void NavigationTest::lastPageButtonIsKept()
{
    m_panel->showResults();
    click("pushButton7");
    QCOMPARE(LastPageButton, m_panel->shown<QPushButton>("pushButton7"));
    click("prev_pushButton");
    QCOMPARE(LastPageButton, m_panel->shown<QPushButton>("prev_pushButton"));
    m_panel->closePane();
    QVERIFY(LastPageButton.isNull());
}

void NavigationTest::searchNeedsAKey()
{
    m_panel->service().setReply("GenerateApiKeyByDescription", test::ScriptedReply::fault("no"));
    QTRY_COMPARE(m_panel->service().requests("GenerateApiKeyByDescription").size(), 1);
    ApiKey.clear();
    m_panel->searchFor("bolt");
    QCOMPARE(m_panel->boxTexts(), QStringList(noKeyText));
    QCOMPARE(m_panel->shownPages(), QStringList("PartHarbor_2D"));
    click("pushButton2");
    QCOMPARE(m_panel->boxTexts(), QStringList({noKeyText, noKeyText}));
    QVERIFY(m_panel->service().requests(searchOperation).isEmpty());
    QCOMPARE(CurrentPageNumber, QString("2"));
}

void NavigationTest::paneMayCloseUnderABox_data()
{
    QTest::addColumn<QString>("place");
    QTest::addRow("main panel, empty term") << "term";
    QTest::addRow("main panel, no key") << "search";
    QTest::addRow("results page, no key") << "page";
    QTest::addRow("detail page, no key") << "back";
}

void NavigationTest::paneMayCloseUnderABox()
{
    QFETCH(QString, place);
    if (place == "page")
        m_panel->showResults();
    else if (place == "back")
        m_panel->openFirstPart();
    m_panel->closePaneWithNextBox();
    ApiKey.clear();
    if (place == "term")
        click("SearchButton");
    else if (place == "search")
        m_panel->searchFor("bolt");
    else if (place == "page")
        click("pushButton2");
    else
        clickBack();
    QCOMPARE(m_panel->boxTexts().size(), 1);
    QVERIFY(!m_panel->isPaneOpen());
}

/// The toolkit goes on with the line edit once the box that Return opened has been closed.
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
    class Panel : public PV3DPartHarbor_2D
    {
    public:
        using PV3DPartHarbor_2D::mousePressEvent;
        using PV3DPartHarbor_2D::PV3DPartHarbor_2D;
    };
    Panel panel(&m_panel->host(), nullptr);
    const QSignalSpy clicks(&panel, SIGNAL(clicked()));
    const auto press = [](Qt::MouseButton button) {
        return QMouseEvent(QEvent::MouseButtonPress, QPointF(1, 1), button, button, Qt::NoModifier);
    };

    QMouseEvent left = press(Qt::LeftButton);
    left.ignore();
    QVERIFY(QCoreApplication::sendEvent(&panel, &left));
    QVERIFY(left.isAccepted());
    QEvent unknown(QEvent::User);
    unknown.ignore();
    QVERIFY(QCoreApplication::sendEvent(&panel, &unknown));
    QVERIFY(unknown.isAccepted());
    QCOMPARE(clicks.size(), 0);

    QMouseEvent right = press(Qt::RightButton);
    panel.mousePressEvent(&right);
    QCOMPARE(clicks.size(), 0);
    panel.mousePressEvent(&left);
    QCOMPARE(clicks.size(), 1);
}

QTEST_MAIN(NavigationTest)
#include "NavigationTest.moc"
