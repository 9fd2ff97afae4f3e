#include "panel/PreviewUI.h"
#include "panel/TableItem.h"
#include "tests/panel/PanelFixture.h"
#include "tests/support/CannedReplies.h"
#include "tests/support/EventCounter.h"

#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QTest>
#include <QTextEdit>

using test::ConfigInfoOperationName;
using test::hits;
using test::PanelFixture;
using test::ScriptedReply;
using test::SearchOperationName;
using test::searchReply;

namespace
{

QList<QPointer<TableItem>> pointersTo(const QList<TableItem*>& rows)
{
    QList<QPointer<TableItem>> pointers;
    for (TableItem* row : rows)
        pointers.append(row);
    return pointers;
}

} // namespace

/// The rows that a search reply is shown as.
class RowsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_panel = std::make_unique<PanelFixture>(); }
    void cleanup() { m_panel.reset(); }

    void rowShowsItsHit();
    void textsAreShownAsTheyCome();
    void endlessTextsAreCut();
    void descriptionCannotBeDragged();
    void rowsMade_data();
    void rowsMade();
    void furtherRowsAreNeverVisible();
    void lastReplyToArriveWins();
    void openedRowLeavesItsTable();
    void openedRowSurvivesALateReply();
    void lateThumbnailFollowsItsRow();
    void rowsArePaintedOnce();

private:
    /// @return nothing while the row is not shown.
    QString textOf(int row, const QString& label) const
    {
        const QWidget* shown = m_panel->row(row);
        return shown == nullptr ? QString() : shown->findChild<QLabel*>(label)->text();
    }
    QList<TableItem*> rows() const { return m_panel->container()->findChildren<TableItem*>(); }
    void turnPage();

    std::unique_ptr<PanelFixture> m_panel;
};

/// Asks for another page and waits until its reply has taken the place of the rows.
void RowsTest::turnPage()
{
    const auto former = pointersTo(rows());
    const int asked = m_panel->service().requests(SearchOperationName).size();
    m_panel->click("pushButton2");
    QTRY_VERIFY(m_panel->service().requests(SearchOperationName).size() > asked);
    QTRY_COMPARE(former.count(nullptr), former.size());
}

void RowsTest::rowShowsItsHit()
{
    m_panel->service().setReply(SearchOperationName,
                                searchReply({{" Bolt", "With shank", "pictures/part.png?size=1", "Maker"},
                                             {"  Nut", "", "pictures/part.png", "Other maker"}}));
    m_panel->showResults();
    QCOMPARE(textOf(0, "namevaluelabel"), QString("Bolt")); // without one blank
    QCOMPARE(textOf(1, "namevaluelabel"), QString(" Nut"));
    QCOMPARE(textOf(0, "label"), QString("Maker"));
    QCOMPARE(textOf(1, "label"), QString("Other maker"));
    QCOMPARE(textOf(0, "catvaluelabel"), QString());
    auto* description = m_panel->row(0)->findChild<QTextEdit*>("descvaluelabel");
    QCOMPARE(description->toPlainText(), QString("With shank"));
    QVERIFY(!description->isReadOnly());
    description = m_panel->row(1)->findChild<QTextEdit*>("descvaluelabel");
    QCOMPARE(description->toPlainText(), QString("None Provided"));

    QTRY_COMPARE(m_panel->service().requests("/pictures/part.png").size(), 2);
    const test::RecordedRequest request = m_panel->service().requests("/pictures/part.png")[0];
    QCOMPARE(request.method, QByteArray("GET"));
    QVERIFY(request.header("SOAPAction").isNull());
}

void RowsTest::textsAreShownAsTheyCome()
{
    const QString markup = "<b>A</b> & <img src='file:///x'>";
    m_panel->service().setReply(SearchOperationName,
                                searchReply({{markup, markup, "pictures/part.png", markup}}));
    m_panel->openFirstPart();
    auto* row = m_panel->shown<TableItem>();
    QCOMPARE(row->findChild<QTextEdit*>()->toPlainText(), markup);
    for (const char* label : {"label", "namevaluelabel"}) {
        QCOMPARE(row->findChild<QLabel*>(label)->text(), markup);
        QCOMPARE(row->findChild<QLabel*>(label)->textFormat(), Qt::PlainText);
    }
    QCOMPARE(m_panel->sent(ConfigInfoOperationName, "supplierName"), QStringList(markup));
    QCOMPARE(m_panel->sent(ConfigInfoOperationName, "modelName"), QStringList(markup));
}

/// A label would take minutes for them.
void RowsTest::endlessTextsAreCut()
{
    const QString endless(1'000'000, 'x');
    const QString most(10'000, 'x');
    m_panel->service().setReply(SearchOperationName,
                                searchReply({{endless, endless, "pictures/part.png", endless}}));
    m_panel->service().setReply(ConfigInfoOperationName, test::configurationsReply({endless}));
    m_panel->window().resize(350, 500);
    m_panel->showResults();
    QCOMPARE(m_panel->row(0)->findChild<QTextEdit*>()->verticalScrollBar()->value(), 0);
    m_panel->clickThumbnail(0);
    auto* page = m_panel->shown<PreviewUI>();
    QTRY_COMPARE(m_panel->sent(test::ConfigParamsOperationName, "configName"), QStringList(endless));
    QCOMPARE(m_panel->sent(ConfigInfoOperationName, "modelName"), QStringList(most));
    auto* row = page->findChild<TableItem*>();
    QVERIFY(row->findChild<QTextEdit*>()->toPlainText() == most);
    QVERIFY(row->findChild<QLabel*>("label")->text() == most);
    for (const QLabel* label : page->findChildren<QLabel*>())
        QVERIFY(label->text().size() <= most.size()); // the configuration's too
}

/// During a drag a late reply may take the row away, under Qt's hands.
void RowsTest::descriptionCannotBeDragged()
{
    m_panel->showResults();
    auto* description = m_panel->row(0)->findChild<QTextEdit*>("descvaluelabel");
    description->selectAll();
    const QPoint within = description->cursorRect().center() - QPoint(10, 0);
    QTest::mousePress(description->viewport(), Qt::LeftButton, Qt::NoModifier, within);
    QVERIFY(!description->textCursor().hasSelection());
    QTest::mouseRelease(description->viewport(), Qt::LeftButton, Qt::NoModifier, within);

    description->selectAll();
    QTest::mouseClick(description->viewport(), Qt::LeftButton, Qt::ShiftModifier, QPoint(20, 10));
    QVERIFY(description->textCursor().hasSelection());
}

void RowsTest::furtherRowsAreNeverVisible()
{
    m_panel->service().setReply(SearchOperationName, searchReply(hits(7)));
    m_panel->searchFor("bolt");
    m_panel->window().setCurrentIndex(0); // the rows are made while their tab is hidden
    QTRY_COMPARE(rows().size(), 7);
    m_panel->window().setCurrentIndex(1);
    QTRY_VERIFY(m_panel->row(4) != nullptr);
    QTRY_COMPARE(m_panel->service().requests("/pictures/part.png").size(), 7); // all fetch theirs
    int visible = 0;
    for (const TableItem* row : rows())
        visible += row->isVisible() ? 1 : 0;
    QCOMPARE(visible, 5);
}

void RowsTest::rowsMade_data()
{
    QTest::addColumn<ScriptedReply>("reply");
    QTest::addColumn<int>("made");
    const auto addCount = [](const char* count, int items, int made) {
        QTest::addRow("%s for %d", count, items) << searchReply(hits(items), count) << made;
    };
    addCount("5", 5, 5);
    addCount("3", 5, 3);
    addCount("2147483647", 2, 2);
    addCount("99999999999", 5, 0); // cannot be read
    addCount("-1", 5, 0);
    addCount("7", 7, 7);
    addCount("60", 60, 50);
    addCount("0", 0, 0);
    addCount("3", 0, 0);
    QTest::addRow("another document") << ScriptedReply::xml("<html/>") << 0;
    // Without a document the last good one counts.
    QTest::addRow("empty") << ScriptedReply::xml({}) << 5;
}

void RowsTest::rowsMade()
{
    QFETCH(ScriptedReply, reply);
    QFETCH(int, made);
    m_panel->showResults();
    m_panel->service().enqueue(SearchOperationName, reply);
    turnPage();
    QTRY_COMPARE(rows().size(), made);
    const auto* table = m_panel->shown<QTableWidget>("tableWidget");
    QCOMPARE(table->rowCount(), 5);
    for (int row = 0; row < 5; ++row)
        QCOMPARE(table->cellWidget(row, 0) != nullptr, row < made);
    turnPage(); // the page goes on working
    QTRY_COMPARE(rows().size(), 5);
    QVERIFY(m_panel->boxTexts().isEmpty());
}

void RowsTest::lastReplyToArriveWins()
{
    m_panel->service().enqueue(SearchOperationName, searchReply({{"Of page 1"}}).held());
    m_panel->service().enqueue(SearchOperationName, searchReply({{"Of page 2"}}));
    m_panel->searchFor("bolt");
    QTRY_COMPARE(m_panel->service().heldCount(), 1);
    m_panel->click("pushButton2");
    QTRY_VERIFY(m_panel->row(0) != nullptr);
    QCOMPARE(textOf(0, "namevaluelabel"), QString("Of page 2"));
    m_panel->service().releaseAll();
    QTRY_COMPARE(textOf(0, "namevaluelabel"), QString("Of page 1"));
}

void RowsTest::openedRowLeavesItsTable()
{
    m_panel->service().setReply(
        SearchOperationName,
        searchReply({{"Bolt", "", "pictures/part.png", "Maker"}, {"Nut", "", "pictures/part.png", "Other"}}));
    m_panel->showResults();
    QPointer<QTableWidget> results = m_panel->shown<QTableWidget>("tableWidget");
    QPointer<QWidget> row = m_panel->row(1);
    m_panel->openPart(1);
    QCOMPARE(m_panel->shownPages(), QStringList("PreviewUI"));
    QCOMPARE(m_panel->sent(ConfigInfoOperationName, "supplierName"), QStringList("Other"));
    QCOMPARE(m_panel->sent(ConfigInfoOperationName, "modelName"), QStringList("Nut"));

    auto* opened = m_panel->shown<TableItem>();
    QCOMPARE(opened, row.data());
    QVERIFY(results->cellWidget(1, 0) == nullptr);
    QVERIFY(results->cellWidget(0, 0) == nullptr); // a left page keeps no rows
    auto* button = opened->findChild<QPushButton*>("iconpushButton");
    QVERIFY(!button->isEnabled());
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(m_panel->service().requests(ConfigInfoOperationName).size(), 1);
}

void RowsTest::openedRowSurvivesALateReply()
{
    m_panel->showResults();
    m_panel->service().enqueue(SearchOperationName, searchReply(hits(3)).held());
    m_panel->click("pushButton2");
    QTRY_COMPARE(m_panel->service().heldCount(), 1);
    auto others = pointersTo(rows());
    m_panel->openPart(0);
    const QPointer<TableItem> opened = m_panel->shown<TableItem>();
    others.removeAll(opened);

    m_panel->service().releaseAll();
    QTRY_COMPARE(m_panel->service().openConnections(), 0);
    QCOMPARE(others.count(nullptr), 4);
    QVERIFY(!opened.isNull() && opened->isVisible());
    QCOMPARE(opened->findChild<QLabel*>("namevaluelabel")->text(), QString("Part 1"));
    QCOMPARE(rows(), QList<TableItem*>{opened}); // the page that has been left is not filled any more
}

void RowsTest::lateThumbnailFollowsItsRow()
{
    m_panel->service().setReply(SearchOperationName, searchReply(hits(1)));
    const ScriptedReply picture = test::pictureReply(test::pngPicture({60, 90}));
    m_panel->service().enqueue("/pictures/part.png", picture.held());
    m_panel->showResults();
    QTRY_COMPARE(m_panel->service().heldCount(), 1);
    m_panel->openPart(0);
    auto* button = m_panel->shown<TableItem>()->findChild<QPushButton*>("iconpushButton");
    QVERIFY(button->icon().isNull());
    m_panel->service().releaseAll();
    QTRY_VERIFY(!button->icon().isNull());
}

void RowsTest::rowsArePaintedOnce()
{
    test::ScriptedService& service = m_panel->service();
    service.setReply(SearchOperationName, searchReply(hits(5)).held());
    service.setReply("/pictures/part.png", test::pictureReply({}).held());
    m_panel->searchFor("bolt");
    QTRY_COMPARE(service.heldCount(), 1);
    const test::EventCounter results(m_panel->shown<QTableWidget>("tableWidget")->viewport());
    service.releaseAll();
    QTRY_COMPARE(service.heldCount(), 5); // the pictures
    QTRY_VERIFY(m_panel->row(0) != nullptr);
    QTRY_VERIFY(results.count(QEvent::Paint) > 0);
    QCoreApplication::processEvents();
    QCOMPARE(results.count(QEvent::Paint), 1);

    m_panel->clickThumbnail(0);
    const test::EventCounter detail(m_panel->shown<QTableWidget>()->viewport());
    // Until the configuration is there, for which its line has been kept free.
    QTRY_COMPARE(service.requests(test::ConfigParamsOperationName).size(), 1);
    QTRY_COMPARE(service.openConnections(), 2); // the row's picture and the preview's
    QCOMPARE(detail.count(QEvent::Paint), 1);
}

QTEST_MAIN(RowsTest)
#include "RowsTest.moc"
