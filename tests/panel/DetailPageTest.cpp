#include "panel/ClickableLabel.h"
#include "panel/DrawingViews.h"
#include "panel/PreviewUI.h"
#include "service/InputParameters.h"
#include "tests/panel/PanelFixture.h"
#include "tests/support/CannedReplies.h"

#include <QComboBox>
#include <QDomDocument>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

using test::ConfigInfoOperationName;
using test::ConfigParamsOperationName;
using test::configurationsReply;
using test::DownloadOperationName;
using test::PanelFixture;
using test::ScriptedReply;

/// The configuration, the choice of a view and the sections of the detail page.
class DetailPageTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_panel = std::make_unique<PanelFixture>(); }
    void cleanup() { m_panel.reset(); }

    void configurations_data();
    void configurations();
    void aLeftPageAsksForNothingMore();
    void parametersGetTheirTypes();
    void everyViewHasItsWireValue();
    void viewIsResetByEachPage();
    void sectionsToggle();
    void longTextsAreNotCutOff();
    void releasesEndAtThePage();
    void doubleClickOnAThumbnailOnlyOpensThePage();

private:
    QTreeWidget* sections() const { return m_panel->shown<QTreeWidget>("preview_page"); }
    QLabel* configuration() const;
    void refuseDrawings();
    void toggle(int section);
    QStringList viewsSent() const { return m_panel->sent(DownloadOperationName, "drawingView"); }

    std::unique_ptr<PanelFixture> m_panel;
};

QLabel* DetailPageTest::configuration() const
{
    QTreeWidget* tree = sections();
    const QWidget* frame = tree->itemWidget(tree->topLevelItem(0)->child(0), 0);
    const auto* grid = qobject_cast<QGridLayout*>(frame->layout());
    return qobject_cast<QLabel*>(grid->itemAtPosition(3, 0)->widget());
}

/// Logs the user in; the service has no drawing for any view.
void DetailPageTest::refuseDrawings()
{
    m_panel->offerDrawing("/unused.dwg", ScriptedReply::never());
    m_panel->service().setReply(DownloadOperationName,
                                ScriptedReply::result(DownloadOperationName, QString()));
}

void DetailPageTest::configurations_data()
{
    QTest::addColumn<ScriptedReply>("reply");
    QTest::addColumn<QString>("name");
    QTest::addRow("one") << configurationsReply({"M8 x 40"}) << "M8 x 40";
    QTest::addRow("last wins") << configurationsReply({"A", "B", "C"}) << "C";
    QTest::addRow("last without name") << configurationsReply({"A", ""}) << "";
    QTest::addRow("markup") << configurationsReply({"<i>A</i> & B"}) << "<i>A</i> & B";
    QTest::addRow("none") << configurationsReply({}) << "";
    QTest::addRow("no child") << ScriptedReply::xml("<r><IConfiguration/></r>") << "";
}

void DetailPageTest::configurations()
{
    QFETCH(ScriptedReply, reply);
    QFETCH(QString, name);
    m_panel->service().setReply(ConfigInfoOperationName, reply);
    m_panel->service().setReply(ConfigParamsOperationName, reply);
    m_panel->openFirstPart(); // waits for the second request
    QCOMPARE(configuration()->text(), name);
    QCOMPARE(m_panel->sent(ConfigParamsOperationName, "configName").first(), name);
    refuseDrawings();
    m_panel->clickPreview(); // the page goes on working
    QTRY_COMPARE(m_panel->boxTexts(), QStringList("Detailed View is not supported."));
}

void DetailPageTest::aLeftPageAsksForNothingMore()
{
    m_panel->service().setReply(ConfigInfoOperationName, configurationsReply({"Late"}).held());
    m_panel->showResults();
    m_panel->clickThumbnail(2);
    const QPointer<const QLabel> label = configuration();
    QTRY_COMPARE(m_panel->service().heldCount(), 1);
    QCOMPARE(label->text(), QString());
    m_panel->click("pushButton");
    QTRY_VERIFY(label.isNull()); // the sections have gone
    m_panel->service().releaseAll();
    QTRY_COMPARE(m_panel->service().openConnections(), 0);
    QVERIFY(m_panel->service().requests(ConfigParamsOperationName).isEmpty());
}

void DetailPageTest::parametersGetTheirTypes()
{
    QDomDocument document("output");
    QVERIFY(
        document.setContent(QByteArray("<r><I xsi:type='a'><P xsi:type='b'/> of <V>8</V><W xsi:type='c'/></I>"
                                       "<I><P/></I><I>8</I></r>")));
    setParameterTypes(document.elementsByTagName("I"));
    QCOMPARE(document.toString(-1),
             QString("<r><I xsi:type=\"InputParameter\"><P xsi:type=\"Parameter\"/> of "
                     "<V xsi:type=\"ParameterValue\">8</V><W xsi:type=\"c\"/></I>"
                     "<I xsi:type=\"InputParameter\"><P xsi:type=\"Parameter\"/></I>"
                     "<I xsi:type=\"InputParameter\">8</I></r>"));
}

void DetailPageTest::everyViewHasItsWireValue()
{
    m_panel->openFirstPart();
    refuseDrawings();
    auto* views = m_panel->shown<QComboBox>();
    views->setFocus();
    QStringList texts;
    for (int i = 0; i < views->count(); ++i) {
        texts.append(views->itemText(i));
        m_panel->clickPreview();
        QTRY_COMPARE(m_panel->boxTexts().size(), i + 1);
        // Once it has been chosen, a view is no longer the text that the messages know.
        QCOMPARE(m_panel->boxTexts().last(), QString(i == 0 ? "Detailed View is not supported." : ""));
        QTest::keyClick(views, Qt::Key_Down);
    }
    QVERIFY(m_panel->files().isEmpty());
    QVERIFY(m_panel->host().journal().lines().filter("Prompt").isEmpty());
    QCOMPARE(texts, QStringList({" Detailed", " 4 View", " Mulit View", " Front", " Top", " Right", " Back",
                                 " Bottom", " Left", " Isometric", " Dimetric", " Trimetric"}));
    QCOMPARE(viewsSent(),
             QStringList({"eDrawingView_PREDEFINED", "eDrawingView_4VIEW", "eDrawingView_MULTI",
                          "eDrawingView_FRONT", "eDrawingView_TOP", "eDrawingView_RIGHT", "eDrawingView_BACK",
                          "eDrawingView_BOTTOM", "eDrawingView_LEFT", "eDrawingView_ISOMETRIC",
                          "eDrawingView_DIMETRIC", "eDrawingView_TRIMETRIC"}));
    QTest::keyClick(views, Qt::Key_Home);
    QCOMPARE(g_drawingView, QString("eDrawingView_PREDEFINED")); // chosen: no longer the text of the start

    // The messages know one view under another name than the list.
    QCOMPARE(unsupportedViewMessage(" Multi View"), QString("Multi View is not supported."));
    QCOMPARE(unsupportedViewMessage(" Mulit View"), QString());
}

void DetailPageTest::viewIsResetByEachPage()
{
    m_panel->openFirstPart();
    QCOMPARE(g_drawingView, QString(" Detailed"));
    m_panel->shown<QComboBox>()->setCurrentText(" Front");
    QCOMPARE(g_drawingView, QString("eDrawingView_FRONT"));
    m_panel->click("pushButton");
    QTRY_VERIFY(m_panel->row(1) != nullptr);
    QCOMPARE(g_drawingView, QString("eDrawingView_FRONT")); // of all pages
    m_panel->openPart(1);
    QCOMPARE(g_drawingView, QString(" Detailed"));
    QCOMPARE(m_panel->shown<QComboBox>()->currentText(), QString(" Detailed"));
}

void DetailPageTest::sectionsToggle()
{
    toggle(0); // on the main panel
    m_panel->openFirstPart();
    toggle(0);
    toggle(1);
}

/// Collapses a section of the shown page and expands it again.
void DetailPageTest::toggle(int section)
{
    const auto* tree = m_panel->shown<QTreeWidget>();
    QTreeWidgetItem* const item = tree->topLevelItem(section);
    auto* header = qobject_cast<QPushButton*>(tree->itemWidget(item, 0));
    const auto icon = [](const QIcon& of) { return of.pixmap(16).toImage(); };
    const QImage expanded = icon(QIcon(":/3DPH/Resource/expanded.png"));
    QCOMPARE(icon(header->icon()), expanded);
    QTest::mouseClick(header, Qt::LeftButton);
    QCOMPARE(icon(header->icon()), icon(QIcon(":/3DPH/Resource/collapsed.png")));
    QVERIFY(icon(header->icon()) != expanded);
    QVERIFY(!tree->itemWidget(item->child(0), 0)->isVisible());
    for (int other = 0; other < tree->topLevelItemCount(); ++other)
        QCOMPARE(tree->topLevelItem(other)->isExpanded(), other != section);
    QTest::keyClick(header, Qt::Key_Space);
    QVERIFY(item->isExpanded());
    QCOMPARE(icon(header->icon()), expanded);
    QTRY_VERIFY(tree->itemWidget(item->child(0), 0)->isVisible());
}

void DetailPageTest::longTextsAreNotCutOff()
{
    const QString name = "Hexagon head bolt with shank, zinc plated, of product grade A, M8 x 40 - 8.8";
    m_panel->service().setReply(test::SearchOperationName, test::searchReply({{name}}));
    m_panel->service().setReply(ConfigInfoOperationName, configurationsReply({name + ", " + name}));
    m_panel->window().resize(350, 1000);
    const auto isWhole = [](const QLabel* label) {
        const QFontMetrics metrics(label->font());
        const QSize needed = metrics
                                 .boundingRect(QRect(0, 0, label->contentsRect().width(), 9999),
                                               Qt::TextWordWrap, label->text())
                                 .size();
        return label->visibleRegion().boundingRect().height() >= needed.height();
    };
    m_panel->showResults();
    QTRY_VERIFY(isWhole(m_panel->row(0)->findChild<QLabel*>("namevaluelabel")));
    m_panel->openPart(0);
    QTRY_VERIFY(isWhole(configuration()));
    auto* row = m_panel->shown<QWidget>("TableItem");
    QTRY_VERIFY(isWhole(row->findChild<QLabel*>("namevaluelabel")));
    QTRY_COMPARE(row->visibleRegion().boundingRect(), row->rect()); // nor is anything else of the row
}

void DetailPageTest::releasesEndAtThePage()
{
    m_panel->openFirstPart();
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(0, 0), Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QCoreApplication::sendEvent(m_panel->shown<PreviewUI>(), &release);
    QVERIFY(release.isAccepted());
}

/// Its second press meets the preview, which may stand in the thumbnail's place by then.
void DetailPageTest::doubleClickOnAThumbnailOnlyOpensThePage()
{
    m_panel->openFirstPart();
    auto* preview = m_panel->shown<ClickableLabel>();
    const QSignalSpy clicks(preview, SIGNAL(clicked()));
    const auto secondPress = [preview] {
        QMouseEvent press(QEvent::MouseButtonDblClick, QPointF(1, 1), Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(preview, &press);
    };
    secondPress();
    QCOMPARE(clicks.size(), 0);
    m_panel->clickPreview();
    secondPress(); // of its own
    QCOMPARE(clicks.size(), 2);
}

QTEST_MAIN(DetailPageTest)
#include "DetailPageTest.moc"
