#include "panel/ClickableLabel.h"
#include "panel/DrawingViews.h"
#include "panel/InputParameters.h"
#include "panel/PreviewUI.h"
#include "tests/panel/PanelFixture.h"
#include "tests/support/CannedReplies.h"

#include <QComboBox>
#include <QDomDocument>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>

using test::configInfoOperation;
using test::configParamsOperation;
using test::configurationsReply;
using test::downloadOperation;
using test::PanelFixture;
using test::ScriptedReply;

Q_DECLARE_METATYPE(test::ScriptedReply)

/// The configuration, the choice of a view and the sections of the detail page.
class DetailPageTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_panel = std::make_unique<PanelFixture>(); }
    void cleanup() { m_panel.reset(); }

    void configurations_data();
    void configurations();
    void lateConfigurationCounts();
    void parametersGetTheirTypes();
    void manyParametersTakeNoTime();
    void unusableParameters_data();
    void unusableParameters();
    void everyViewHasItsWireValue();
    void viewIsResetByEachPage();
    void unknownViewIsSentAsItStands();
    void viewWithoutDrawing();
    void messagesOfViewsWithoutDrawing();
    void sectionsToggle_data();
    void sectionsToggle();
    void longTextsAreNotCutOff_data();
    void longTextsAreNotCutOff();
    void releasesEndAtThePage();

private:
    QTreeWidget* sections() const { return m_panel->shown<QTreeWidget>("preview_page"); }
    QLabel* configuration() const;
    void refuseDrawings();
    QStringList viewsSent() const { return m_panel->sent(downloadOperation, "drawingView"); }

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
    m_panel->service().setReply(downloadOperation, ScriptedReply::result(downloadOperation, QString()));
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
    QTest::addRow("fault") << ScriptedReply::fault("no") << "";
    QTest::addRow("no XML") << ScriptedReply::xml("<html") << "";
    QTest::addRow("reset") << ScriptedReply::reset() << "";
}

void DetailPageTest::configurations()
{
    QFETCH(ScriptedReply, reply);
    QFETCH(QString, name);
    m_panel->service().setReply(configInfoOperation, reply);
    m_panel->openFirstPart(); // waits for the second request
    QCOMPARE(configuration()->text(), name);
    QCOMPARE(m_panel->sent(configParamsOperation, "configName"), QStringList(name));
    for (const QString& operation : {configInfoOperation, configParamsOperation}) {
        QCOMPARE(m_panel->sent(operation, "apiKey").last(), QString("key"));
        QCOMPARE(m_panel->sent(operation, "supplierName").last(), QString("Supplier"));
        QCOMPARE(m_panel->sent(operation, "modelName").last(), QString("Part 1"));
        QCOMPARE(m_panel->sent(operation, "language").last(), QString("Base"));
    }
    QVERIFY(m_panel->boxTexts().isEmpty());
}

void DetailPageTest::lateConfigurationCounts()
{
    m_panel->service().setReply(configInfoOperation, configurationsReply({"Late"}).held());
    m_panel->showResults();
    QTest::mouseClick(m_panel->row(2)->findChild<QPushButton*>("iconpushButton"), Qt::LeftButton);
    const QLabel* label = configuration();
    QTRY_COMPARE(m_panel->service().heldCount(), 1);
    QCOMPARE(label->text(), QString());
    QTest::mouseClick(m_panel->shown<QPushButton>("pushButton"), Qt::LeftButton); // page left
    m_panel->service().releaseAll();
    QTRY_COMPARE(label->text(), QString("Late"));
}

void DetailPageTest::parametersGetTheirTypes()
{
    QDomDocument document("output");
    QVERIFY(document.setContent(QByteArray("<r><IInputParameter xsi:type='a' unit='mm'> <P "
                                           "xsi:type='b'>d</P> <!-- of --> <V>8</V><W xsi:type='c'/>"
                                           "</IInputParameter><IInputParameter><P/></"
                                           "IInputParameter><IInputParameter>8</IInputParameter></r>")));
    setParameterTypes(document.elementsByTagName("IInputParameter"));

    QStringList types;
    const auto typeOf = [](const QDomElement& element) {
        return element.tagName() + ' ' + element.attribute("xsi:type");
    };
    QDomElement parameter = document.documentElement().firstChildElement();
    QCOMPARE(parameter.attribute("unit"), QString("mm"));
    for (; !parameter.isNull(); parameter = parameter.nextSiblingElement()) {
        types.append(typeOf(parameter));
        for (auto child = parameter.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
            types.append(typeOf(child));
    }
    QCOMPARE(types, QStringList({"IInputParameter InputParameter", "P Parameter", "V ParameterValue", "W c",
                                 "IInputParameter InputParameter", "P Parameter",
                                 "IInputParameter InputParameter"}));
}

void DetailPageTest::manyParametersTakeNoTime()
{
    QByteArray parameters;
    for (int i = 0; i < 20000; ++i)
        parameters += "<IInputParameter><P/><V/></IInputParameter>";
    QDomDocument document("output");
    QVERIFY(document.setContent("<r>" + parameters + "</r>"));
    QElapsedTimer timer;
    timer.start();
    setParameterTypes(document.elementsByTagName("IInputParameter"));
    QVERIFY2(timer.elapsed() < 10000, "The time must not grow with the square of the number");
}

void DetailPageTest::unusableParameters_data()
{
    QTest::addColumn<ScriptedReply>("reply");
    QTest::addRow("fault") << ScriptedReply::fault("no");
    QTest::addRow("no XML") << ScriptedReply::xml("<IInputParameter");
    QTest::addRow("empty") << ScriptedReply::xml({});
    QTest::addRow("reset") << ScriptedReply::reset();
    QTest::addRow("bare parameters") << ScriptedReply::xml("<r><IInputParameter/>text<IInputParameter/></r>");
}

void DetailPageTest::unusableParameters()
{
    QFETCH(ScriptedReply, reply);
    m_panel->service().setReply(configParamsOperation, reply);
    m_panel->openFirstPart();
    refuseDrawings();
    m_panel->clickPreview(); // the page goes on working
    QTRY_COMPARE(m_panel->boxTexts(), QStringList("Detailed View is not supported."));
    QCOMPARE(m_panel->service().requests(downloadOperation)[0].body.count("<inputParameters/>"), 1);
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
        QVERIFY(views->itemData(i).isNull());
        m_panel->clickPreview();
        QTRY_COMPARE(m_panel->boxTexts().size(), i + 1);
        QTest::keyClick(views, Qt::Key_Down);
    }
    QCOMPARE(texts, QStringList({" Detailed", " 4 View", " Mulit View", " Front", " Top", " Right", " Back",
                                 " Bottom", " Left", " Isometric", " Dimetric", " Trimetric"}));
    QCOMPARE(viewsSent(),
             QStringList({"eDrawingView_PREDEFINED", "eDrawingView_4VIEW", "eDrawingView_MULTI",
                          "eDrawingView_FRONT", "eDrawingView_TOP", "eDrawingView_RIGHT", "eDrawingView_BACK",
                          "eDrawingView_BOTTOM", "eDrawingView_LEFT", "eDrawingView_ISOMETRIC",
                          "eDrawingView_DIMETRIC", "eDrawingView_TRIMETRIC"}));
    QTest::keyClick(views, Qt::Key_Home);
    QCOMPARE(g_drawingView, QString("eDrawingView_PREDEFINED")); // chosen: no longer the text of the start
}

void DetailPageTest::viewIsResetByEachPage()
{
    m_panel->openFirstPart();
    QCOMPARE(g_drawingView, QString(" Detailed"));
    m_panel->shown<QComboBox>()->setCurrentText(" Front");
    QCOMPARE(g_drawingView, QString("eDrawingView_FRONT"));
    QTest::mouseClick(m_panel->shown<QPushButton>("pushButton"), Qt::LeftButton);
    QTRY_VERIFY(m_panel->row(1) != nullptr);
    QCOMPARE(g_drawingView, QString("eDrawingView_FRONT")); // of all pages
    m_panel->openPart(1);
    QCOMPARE(g_drawingView, QString(" Detailed"));
    QCOMPARE(m_panel->shown<QComboBox>()->currentText(), QString(" Detailed"));
}

void DetailPageTest::unknownViewIsSentAsItStands()
{
    m_panel->openFirstPart();
    refuseDrawings();
    const QStringList given{"Detailed", "", "eDrawingView_FRONT"};
    for (int i = 0; i < given.size(); ++i) {
        QMetaObject::invokeMethod(m_panel->shown<PreviewUI>(), "switchcall", Q_ARG(QString, given[i]));
        QCOMPARE(g_drawingView, given[i]);
        m_panel->clickPreview();
        QTRY_COMPARE(m_panel->boxTexts().size(), i + 1);
    }
    QCOMPARE(viewsSent(), QStringList({"Detailed", "eDrawingView_PREDEFINED", "eDrawingView_FRONT"}));
}

void DetailPageTest::viewWithoutDrawing()
{
    m_panel->openFirstPart();
    refuseDrawings();
    m_panel->clickPreview();
    QTRY_COMPARE(m_panel->boxTexts(), QStringList("Detailed View is not supported."));
    m_panel->shown<QComboBox>()->setCurrentText(" Top");
    m_panel->clickPreview();
    QTRY_COMPARE(m_panel->boxTexts(), QStringList({"Detailed View is not supported.", ""}));
    QCOMPARE(m_panel->answerer().boxes()[1].title, QString("Error"));
    QCOMPARE(m_panel->answerer().boxes()[1].icon, QMessageBox::Critical);
    QVERIFY(m_panel->files().isEmpty());
    QVERIFY(m_panel->host().journal().lines().filter("Prompt").isEmpty());
}

void DetailPageTest::messagesOfViewsWithoutDrawing()
{
    // The messages know one view under another name than the list.
    for (const char* view : {"Detailed", "Multi", "Front", "Top", "Right", "Back", "Bottom", "Left",
                             "Isometric", "Dimetric", "Trimetric"}) {
        const QString text = view == QLatin1String("Multi") ? " Multi View" : ' ' + QString(view);
        QCOMPARE(unsupportedViewMessage(text), QString("%1 View is not supported.").arg(view));
    }
    QCOMPARE(unsupportedViewMessage(" 4 View"), QString("4 View is not supported."));
    for (const char* view : {" Mulit View", " Multi", "Detailed", "eDrawingView_TOP", ""})
        QCOMPARE(unsupportedViewMessage(view), QString());
}

void DetailPageTest::sectionsToggle_data()
{
    QTest::addColumn<bool>("mainPanel");
    QTest::addColumn<int>("section");
    QTest::addRow("search") << true << 0;
    QTest::addRow("configure") << false << 0;
    QTest::addRow("preview") << false << 1;
}

void DetailPageTest::sectionsToggle()
{
    QFETCH(bool, mainPanel);
    QFETCH(int, section);
    if (!mainPanel)
        m_panel->openFirstPart();
    auto* tree = m_panel->shown<QTreeWidget>();
    QTreeWidgetItem* const item = tree->topLevelItem(section);
    auto* header = qobject_cast<QPushButton*>(tree->itemWidget(item, 0));
    const auto icon = [](const QIcon& of) { return of.pixmap(16).toImage(); };
    const QImage expanded = icon(QIcon(":/3DPH/Resource/expanded.png"));
    const QImage collapsed = icon(QIcon(":/3DPH/Resource/collapsed.png"));
    QVERIFY(expanded != collapsed);

    QVERIFY(item->isExpanded());
    QCOMPARE(icon(header->icon()), expanded);
    QTest::mouseClick(header, Qt::LeftButton);
    QVERIFY(!item->isExpanded());
    QCOMPARE(icon(header->icon()), collapsed);
    QVERIFY(!tree->itemWidget(item->child(0), 0)->isVisible());
    for (int other = 0; other < tree->topLevelItemCount(); ++other)
        QCOMPARE(tree->topLevelItem(other)->isExpanded(), other != section);
    QTest::keyClick(header, Qt::Key_Space);
    QVERIFY(item->isExpanded());
    QCOMPARE(icon(header->icon()), expanded);
    QTRY_VERIFY(tree->itemWidget(item->child(0), 0)->isVisible());
}

void DetailPageTest::longTextsAreNotCutOff_data()
{
    QTest::addColumn<int>("width");
    QTest::addRow("narrow") << 350;
    QTest::addRow("wide") << 800;
}

void DetailPageTest::longTextsAreNotCutOff()
{
    QFETCH(int, width);
    const QString name = "Hexagon head bolt with shank, zinc plated, of product grade A, M8 x 40 - 8.8";
    m_panel->service().setReply(test::searchOperation, test::searchReply({{name}}));
    m_panel->service().setReply(configInfoOperation, configurationsReply({name + ", " + name}));
    m_panel->window().resize(width, 1000);
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
    class Watch : public QObject
    {
    public:
        bool eventFilter(QObject*, QEvent* event) override
        {
            releases += event->type() == QEvent::MouseButtonRelease ? 1 : 0;
            return false;
        }
        int releases = 0;
    } watch;
    m_panel->container()->installEventFilter(&watch);
    auto* page = m_panel->shown<PreviewUI>();
    QTest::mouseRelease(page, Qt::LeftButton, Qt::NoModifier, QPoint(0, 0));
    QCOMPARE(watch.releases, 0);
}

QTEST_MAIN(DetailPageTest)
#include "DetailPageTest.moc"
