#include "panel/ClickableLabel.h"
#include "panel/LogInPage.h"
#include "panel/PV3DPartHarbor_2D.h"
#include "panel/ParentWidget.h"
#include "panel/PartHarbor_2D.h"
#include "panel/PreviewUI.h"
#include "panel/QtCategoryButton.h"
#include "panel/TableItem.h"
#include "tests/panel/PanelFixture.h"

#include <QFrame>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTranslator>
#include <QTreeWidget>
#include <QtTest>

Q_DECLARE_METATYPE(const QMetaObject*)

namespace
{

constexpr int styledPanel = 6;
constexpr int box = 1;
constexpr int raised = 32;
constexpr int sunken = 48;
constexpr int strongFocus = 11;

/// Translates every text into its context and itself, to show which are translated.
class ShowingTranslator : public QTranslator
{
    Q_OBJECT

public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* /*comment*/,
                      int /*number*/) const override
    {
        return QString("%1|%2").arg(context, QString::fromUtf8(text));
    }
};

/// Where an item of a grid layout is.
struct Cell {
    const char* layout;
    const char* item; ///< object name of the widget or layout
    int row;
    int column;
    int rows = 1;
    int columns = 1;
};

struct Spacing {
    const char* layout;
    int spacing;
    QMargins margins;
};

struct Value {
    const char* object; ///< empty for the page itself
    const char* property;
    QVariant value;
};

QVariant comparable(const QVariant& actual, const QVariant& expected)
{
    return expected.type() == QVariant::Int ? QVariant(actual.toInt()) : actual;
}

const QString html = "<html><head/><body><p><span style=\"%1\">%2</span></p></body></html>";
const QString anchor = "<a href=\"https://catalog.test:8443/%1\\\">%2</a>";

} // namespace

/// How the pages are built: object names, texts, sizes, cells and the rest that others may rely on. The pages
/// stand alone here, as their constructors leave them.
class FormsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void container();
    void mainPanel();
    void searchSection();
    void resultsPage();
    void startOfSearch();
    void row();
    void loginPage();
    void detailPage();
    void detailSections();
    void sectionHeaders_data();
    void sectionHeaders();
    void backButtons_data();
    void backButtons();
    void translatedTexts();
    void interfaces_data();
    void interfaces();

private:
    void checkCells(const QWidget* page, std::initializer_list<Cell> cells);
    void checkSpacings(const QWidget* page, std::initializer_list<Spacing> spacings);
    void checkValues(QWidget* page, std::initializer_list<Value> values);
    template <class Page>
    Page* make()
    {
        return new Page(&m_panel->host(), m_parent.get());
    }

    std::unique_ptr<test::PanelFixture> m_panel;
    std::unique_ptr<QWidget> m_parent;
};

void FormsTest::init()
{
    m_panel = std::make_unique<test::PanelFixture>();
    m_parent = std::make_unique<QWidget>();
    new QGridLayout(m_parent.get());
}

void FormsTest::cleanup()
{
    m_parent.reset();
    m_panel.reset();
}

void FormsTest::checkCells(const QWidget* page, std::initializer_list<Cell> cells)
{
    for (const Cell& cell : cells) {
        const auto* grid = page->findChild<QGridLayout*>(cell.layout);
        QVERIFY2(grid != nullptr, cell.layout);
        bool found = false;
        for (int i = 0; i < grid->count(); ++i) {
            QLayoutItem* const item = grid->itemAt(i);
            const QObject* const object =
                item->widget() != nullptr ? static_cast<const QObject*>(item->widget()) : item->layout();
            if (object == nullptr || object->objectName() != cell.item)
                continue;
            found = true;
            int row = -1;
            int column = -1;
            int rows = -1;
            int columns = -1;
            grid->getItemPosition(i, &row, &column, &rows, &columns);
            const QString position = QString("%1 %2 %3 %4").arg(row).arg(column).arg(rows).arg(columns);
            const QString expected =
                QString("%1 %2 %3 %4").arg(cell.row).arg(cell.column).arg(cell.rows).arg(cell.columns);
            QVERIFY2(position == expected, qPrintable(QString(cell.item) + ": " + position));
            QVERIFY2(item->alignment() == 0, cell.item);
        }
        QVERIFY2(found, cell.item);
    }
}

void FormsTest::checkSpacings(const QWidget* page, std::initializer_list<Spacing> spacings)
{
    for (const Spacing& expected : spacings) {
        const auto* layout = page->findChild<QGridLayout*>(expected.layout);
        QVERIFY2(layout != nullptr && layout->horizontalSpacing() == expected.spacing &&
                     layout->verticalSpacing() == expected.spacing &&
                     layout->contentsMargins() == expected.margins,
                 expected.layout);
    }
}

void FormsTest::checkValues(QWidget* page, std::initializer_list<Value> values)
{
    for (const Value& value : values) {
        QObject* const object =
            *value.object == '\0' ? page : page->findChild<QObject*>(QString(value.object));
        QVERIFY2(object != nullptr, value.object);
        const QVariant actual = comparable(object->property(value.property), value.value);
        QString shown;
        QDebug(&shown) << value.object << value.property << actual << "instead of" << value.value;
        QVERIFY2(actual == value.value, qPrintable(shown));
    }
}

void FormsTest::container()
{
    ParentWidget page(nullptr);
    checkValues(&page, {{"", "objectName", "ParentWidget"},
                        {"", "windowTitle", "ParentWidget"},
                        {"", "size", QSize(270, 671)},
                        {"frame", "frameShape", styledPanel},
                        {"frame", "frameShadow", raised}});
    checkSpacings(&page, {{"gridLayout", 6, {2, 2, 1, 1}}});
    checkCells(&page, {{"gridLayout", "frame", 0, 0}});
}

void FormsTest::mainPanel()
{
    auto* page = make<PV3DPartHarbor_2D>();
    checkValues(page, {{"", "objectName", "PartHarbor_2DMain"},
                       {"", "windowTitle", "CircleInserter"},
                       {"", "size", QSize(288, 646)},
                       {"", "focusPolicy", strongFocus},
                       {"frame", "frameShape", styledPanel},
                       {"frame", "frameShadow", raised},
                       {"PH_2DTabPage", "columnCount", 1},
                       {"PH_2DTabPage", "headerHidden", true},
                       {"PH_2DTabPage", "rootIsDecorated", false},
                       {"PH_2DTabPage", "indentation", 0},
                       {"PH_2DTabPage", "autoFillBackground", true}});
    checkSpacings(page, {{"gridLayout", 1, {1, 1, 1, 1}}, {"gridLayout_2", 6, {2, 2, 2, 2}}});
    checkCells(page, {{"gridLayout", "frame", 0, 0}, {"gridLayout_2", "PH_2DTabPage", 0, 0}});
    auto* tree = page->findChild<QTreeWidget*>();
    QCOMPARE(tree->headerItem()->text(0), QString("1"));
    // Set to 0, of which the toolkit makes the style's minimum.
    QCOMPARE(tree->header()->defaultSectionSize(), tree->header()->minimumSectionSize());
}

void FormsTest::searchSection()
{
    auto* page = make<PV3DPartHarbor_2D>();
    auto* tree = page->findChild<QTreeWidget*>();
    QCOMPARE(tree->topLevelItemCount(), 1);
    QTreeWidgetItem* const section = tree->topLevelItem(0);
    QCOMPARE(section->childCount(), 1);
    QCOMPARE(section->type(), 0);
    QVERIFY(section->child(0)->isDisabled());
    QWidget* const frame = tree->itemWidget(section->child(0), 0);
    frame->setObjectName("section");
    auto* grid = qobject_cast<QGridLayout*>(frame->layout());
    grid->setObjectName("grid");
    QCOMPARE(grid->horizontalSpacing(), 270);
    QCOMPARE(grid->verticalSpacing(), 0);
    QCOMPARE(grid->contentsMargins(), QMargins(5, 3, 5, 3));
    checkValues(page, {{"section", "styleSheet", "margin-bottom: 5px;"},
                       {"section", "frameShape", box},
                       {"section", "frameShadow", sunken},
                       {"SearchLine", "minimumHeight", 25},
                       {"SearchLine", "styleSheet", "QLineEdit{margin-right : 30px;}"},
                       {"SearchButton", "minimumHeight", 25},
                       {"SearchButton", "text", ""}});
    checkCells(frame, {{"grid", "SearchLine", 0, 0, 1, 129}, {"grid", "SearchButton", 0, 1, 1, 129}});
    QVERIFY(!page->findChild<QPushButton*>("SearchButton")->icon().isNull());

    // The button stands over the line's right end at any width.
    for (const int width : {350, 800}) {
        m_panel->window().resize(width, 700);
        auto* line = m_panel->shown<QLineEdit>("SearchLine");
        auto* button = m_panel->shown<QPushButton>("SearchButton");
        QTRY_VERIFY(button->width() < 60 && button->geometry().right() + 20 > line->parentWidget()->width());
        QVERIFY(line->geometry().right() > button->x());
        QVERIFY(line->geometry().right() - 30 <= button->x()); // its visible end
    }
}

void FormsTest::resultsPage()
{
    auto* page = make<PartHarbor_2D>();
    checkValues(page, {{"", "objectName", "PartHarbor_2D"},
                       {"", "windowTitle", "PartHarbor_2D"},
                       {"", "size", QSize(397, 646)},
                       {"", "styleSheet", ""},
                       {"frame", "frameShape", styledPanel},
                       {"frame", "frameShadow", raised},
                       {"tableWidget", "minimumSize", QSize(0, 0)},
                       {"tableWidget", "midLineWidth", 1},
                       {"tableWidget", "verticalScrollBarPolicy", Qt::ScrollBarAsNeeded},
                       {"tableWidget", "horizontalScrollBarPolicy", Qt::ScrollBarAsNeeded},
                       {"tableWidget", "sizeAdjustPolicy", QAbstractScrollArea::AdjustToContents},
                       {"tableWidget", "editTriggers", QAbstractItemView::NoEditTriggers},
                       {"tableWidget", "tabKeyNavigation", false},
                       {"tableWidget", "selectionMode", QAbstractItemView::NoSelection},
                       {"tableWidget", "selectionBehavior", QAbstractItemView::SelectColumns},
                       {"tableWidget", "showGrid", true},
                       {"tableWidget", "gridStyle", static_cast<int>(Qt::SolidLine)},
                       {"tableWidget", "sortingEnabled", true}});
    auto* table = page->findChild<QTableWidget*>();
    QVERIFY(table->horizontalHeader()->isHidden() && table->verticalHeader()->isHidden());
    checkSpacings(page, {{"gridLayout_3", 6, {11, 11, 11, 11}},
                         {"gridLayout_2", 5, {2, 2, 2, 2}},
                         {"gridLayout", 6, {2, 2, 2, 2}}});
    checkCells(page, {{"gridLayout_3", "frame", 0, 0},
                      {"gridLayout_3", "widget", 1, 0},
                      {"gridLayout_2", "pushButton", 0, 0},
                      {"gridLayout_2", "tableWidget", 1, 0, 1, 2},
                      {"gridLayout", "prev_pushButton", 1, 0},
                      {"gridLayout", "pushButton1", 0, 1, 2, 1},
                      {"gridLayout", "pushButton2", 0, 2, 2, 1},
                      {"gridLayout", "pushButton3", 0, 3, 2, 1},
                      {"gridLayout", "pushButton4", 0, 4, 2, 1},
                      {"gridLayout", "pushButton5", 0, 5, 2, 1},
                      {"gridLayout", "pushButton6", 1, 6},
                      {"gridLayout", "pushButton7", 0, 7, 2, 1},
                      {"gridLayout", "next_pushButton", 1, 8}});
    for (const char* button : {"pushButton1", "pushButton2", "pushButton3", "pushButton4", "pushButton5",
                               "pushButton7", "pushButton6", "prev_pushButton", "next_pushButton"}) {
        const bool number = QString(button).startsWith('p') && !QString(button).startsWith("prev");
        const bool dots = QString(button) == "pushButton6";
        checkValues(page, {{button, "flat", true},
                           {button, "enabled", !dots},
                           {button, "minimumSize", number ? QSize(20, 20) : QSize(0, 0)},
                           {button, "focusPolicy", number && !dots ? 0 : strongFocus}});
    }
    QVERIFY(qobject_cast<QGridLayout*>(page->findChild<QGridLayout*>("gridLayout_2"))
                ->itemAtPosition(0, 1)
                ->spacerItem() != nullptr);
}

void FormsTest::startOfSearch()
{
    auto* page = make<PartHarbor_2D>();
    page->startSearch();
    auto* table = page->findChild<QTableWidget*>();
    QCOMPARE(table->rowCount(), 5);
    QCOMPARE(table->columnCount(), 1);
    QCOMPARE(table->horizontalHeader()->sectionResizeMode(0), QHeaderView::Stretch);
    QCOMPARE(table->verticalHeader()->sectionResizeMode(4), QHeaderView::Stretch);
    QVERIFY(table->hasAutoScroll());
}

void FormsTest::row()
{
    auto* results = make<PartHarbor_2D>();
    TableItem page(results, results);
    const QSizePolicy expanding(QSizePolicy::Expanding, QSizePolicy::Expanding);
    checkValues(&page, {{"", "objectName", "TableItem"},
                        {"", "windowTitle", "TableItem"},
                        {"", "size", QSize(295, 165)},
                        {"", "sizePolicy", expanding},
                        {"", "styleSheet", ""},
                        {"frame", "frameShape", styledPanel},
                        {"frame", "frameShadow", raised},
                        {"frame", "lineWidth", 2},
                        {"frame", "sizePolicy", expanding},
                        {"frame", "styleSheet", ""},
                        {"line_2", "frameShape", 5},
                        {"line_2", "frameShadow", sunken},
                        {"line_2", "styleSheet", ""},
                        {"line", "frameShape", 4},
                        {"line", "frameShadow", raised},
                        {"label", "text", ""},
                        {"iconpushButton", "text", ""},
                        {"iconpushButton", "flat", true},
                        {"iconpushButton", "minimumSize", QSize(0, 0)},
                        {"namelabel", "text", "Name : "},
                        {"namevaluelabel", "text", ""},
                        {"desclabel", "text", "Description :"},
                        {"descvaluelabel", "maximumHeight", 60},
                        {"catlabel", "text", "Category :"},
                        {"catvaluelabel", "text", ""}});
    checkSpacings(&page, {{"gridLayout_2", 6, {2, 2, 2, 2}},
                          {"gridLayout_5", 6, {11, 11, 11, 11}},
                          {"gridLayout_4", 2, {}},
                          {"gridLayout", 6, {}},
                          {"gridLayout_3", 6, {}}});
    checkCells(&page, {{"gridLayout_2", "frame", 0, 0},
                       {"gridLayout_5", "gridLayout_4", 0, 0, 3, 1},
                       {"gridLayout_5", "line_2", 0, 1, 3, 1},
                       {"gridLayout_5", "gridLayout", 0, 2, 1, 2},
                       {"gridLayout_5", "line", 1, 2, 1, 2},
                       {"gridLayout_5", "gridLayout_3", 2, 2, 1, 2},
                       {"gridLayout_4", "label", 0, 0},
                       {"gridLayout_4", "iconpushButton", 1, 0},
                       {"gridLayout", "namelabel", 0, 0},
                       {"gridLayout", "namevaluelabel", 0, 1},
                       {"gridLayout", "desclabel", 1, 0},
                       {"gridLayout", "descvaluelabel", 1, 1},
                       {"gridLayout_3", "catlabel", 0, 0},
                       {"gridLayout_3", "catvaluelabel", 0, 1}});
}

void FormsTest::loginPage()
{
    auto* page = make<LogInPage>();
    checkValues(page,
                {{"", "objectName", "LogInPage"},
                 {"", "windowTitle", "LogInPage"},
                 {"", "size", QSize(288, 690)},
                 {"frame", "frameShape", styledPanel},
                 {"frame", "frameShadow", raised},
                 {"TitleLabel", "text", html.arg(" font-size:12pt; font-weight:600; ;", "3D PARTHARBOR")},
                 {"TitleLabel", "alignment", static_cast<int>(Qt::AlignCenter)},
                 {"emailLabel", "text", html.arg(" font-size:9pt;", "Email Address : ")},
                 {"email_lineEdit", "echoMode", QLineEdit::Normal},
                 {"passLabel", "text", html.arg(" font-size:9pt;", "Password :")},
                 {"Pass_lineEdit_2", "echoMode", QLineEdit::Password},
                 {"LogIn_pushButton", "text", "Log In"},
                 {"LogIn_pushButton", "autoFillBackground", false},
                 {"checkBox", "text", "Remember Me"},
                 {"checkBox", "styleSheet",
                  "QCheckBox::indicator::checked {image: "
                  "url(:/3DPH/Resource/CheckBox_checked.PNG);}"},
                 {"ForgotLabel", "text",
                  html.arg(" font-size:9pt; color:#53c2fc;",
                           anchor.arg("Login.aspx?ForgotPassword=true", "Forgot Password ?")) +
                      "\n\n\n"},
                 {"signUPLabel", "text",
                  html.arg(" color:#53c2fc;", anchor.arg("Register.aspx/", "SIGN UP")) + "\n\n"}});
    for (const char* link : {"ForgotLabel", "signUPLabel"})
        checkValues(page, {{link, "openExternalLinks", true}, {link, "textInteractionFlags", 13}});
    checkSpacings(page, {{"gridLayout", 6, {11, 11, 11, 11}}, {"gridLayout_2", 6, {11, 11, 11, 11}}});
    checkCells(page, {{"gridLayout", "frame", 0, 0},
                      {"gridLayout_2", "TitleLabel", 0, 0},
                      {"gridLayout_2", "emailLabel", 1, 0},
                      {"gridLayout_2", "email_lineEdit", 2, 0},
                      {"gridLayout_2", "passLabel", 3, 0},
                      {"gridLayout_2", "Pass_lineEdit_2", 4, 0},
                      {"gridLayout_2", "LogIn_pushButton", 6, 0},
                      {"gridLayout_2", "checkBox", 7, 0},
                      {"gridLayout_2", "horizontalLayout", 8, 0}});
    const auto* grid = page->findChild<QGridLayout*>("gridLayout_2");
    const QSpacerItem* const above = grid->itemAtPosition(5, 0)->spacerItem();
    QCOMPARE(above->sizeHint(), QSize(20, 20));
    QCOMPARE(above->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed));
    const QSpacerItem* const below = grid->itemAtPosition(9, 0)->spacerItem();
    QCOMPARE(below->sizeHint(), QSize(20, 40));
    QCOMPARE(below->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Expanding));
    const auto* links = page->findChild<QHBoxLayout*>("horizontalLayout");
    QCOMPARE(links->spacing(), 6);
    QCOMPARE(links->itemAt(0)->widget()->objectName(), QString("ForgotLabel"));
    QCOMPARE(links->itemAt(1)->spacerItem()->sizeHint(), QSize(40, 20));
    QCOMPARE(links->itemAt(2)->widget()->objectName(), QString("signUPLabel"));
}

void FormsTest::detailPage()
{
    auto* page = make<PreviewUI>();
    checkValues(page, {{"", "objectName", "PreviewUI"},
                       {"", "windowTitle", "PreviewUI"},
                       {"", "size", QSize(272, 693)},
                       {"frame", "frameShape", styledPanel},
                       {"frame", "frameShadow", raised},
                       {"preview_page", "headerHidden", true},
                       {"preview_page", "rootIsDecorated", false},
                       {"preview_page", "indentation", 0},
                       {"preview_page", "autoFillBackground", true}});
    QCOMPARE(page->findChild<QTreeWidget*>()->headerItem()->text(0), QString("1"));
    checkSpacings(page, {{"gridLayout", 6, {2, 2, 2, 2}}, {"gridLayout_2", 6, {11, 11, 11, 11}}});
    checkCells(page, {{"gridLayout", "frame", 0, 0},
                      {"gridLayout_2", "pushButton", 0, 0},
                      {"gridLayout_2", "preview_page", 1, 0, 1, 2}});
    const QSpacerItem* const spacer =
        page->findChild<QGridLayout*>("gridLayout_2")->itemAtPosition(0, 1)->spacerItem();
    QCOMPARE(spacer->sizeHint(), QSize(219, 20));
    QCOMPARE(spacer->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum));
}

void FormsTest::detailSections()
{
    auto* page = make<PreviewUI>();
    auto* tree = page->findChild<QTreeWidget*>();
    QCOMPARE(tree->topLevelItemCount(), 2);
    const QStringList classes{"QLabel", "QComboBox", "QLabel", "QLabel", "QTableWidget", "ClickableLabel"};
    QWidgetList contents;
    for (int section = 0; section < 2; ++section) {
        QTreeWidgetItem* const content = tree->topLevelItem(section)->child(0);
        QCOMPARE(tree->topLevelItem(section)->childCount(), 1);
        QVERIFY(content->isDisabled());
        QWidget* const frame = tree->itemWidget(content, 0);
        frame->setObjectName(section == 0 ? "configure" : "preview");
        checkValues(page, {{frame->objectName().toLatin1(), "styleSheet", "margin-bottom: 5px;"},
                           {frame->objectName().toLatin1(), "frameShape", box},
                           {frame->objectName().toLatin1(), "frameShadow", sunken}});
        auto* grid = qobject_cast<QGridLayout*>(frame->layout());
        grid->setObjectName(frame->objectName() + "Grid");
        QCOMPARE(grid->verticalSpacing(), 0);
        for (int i = 0; i < grid->count(); ++i) {
            contents.append(grid->itemAt(i)->widget());
            contents.last()->setObjectName("content" + QString::number(contents.size() - 1));
        }
    }
    QCOMPARE(contents.size(), classes.size());
    for (int i = 0; i < classes.size(); ++i)
        QCOMPARE(contents[i]->metaObject()->className(), classes[i].toLatin1().constData());
    checkCells(page, {{"configureGrid", "content0", 0, 0, 1, 129},
                      {"configureGrid", "content1", 1, 0, 1, 129},
                      {"configureGrid", "content2", 2, 0, 1, 129},
                      {"configureGrid", "content3", 3, 0, 1, 129},
                      {"configureGrid", "content4", 4, 0, 1, 129},
                      {"previewGrid", "content5", 0, 0, 1, 129}});
    checkValues(page, {{"content0", "text", "View : "},
                       {"content0", "styleSheet", "font-weight: bold;"},
                       {"content0", "minimumSize", QSize(40, 25)},
                       {"content1", "count", 12},
                       {"content1", "currentIndex", 0},
                       {"content1", "minimumSize", QSize(40, 25)},
                       {"content2", "text", "Configuration : "},
                       {"content2", "styleSheet", "font-weight: bold;"},
                       {"content2", "minimumSize", QSize(40, 25)},
                       {"content3", "text", ""},
                       {"content3", "frameShape", box},
                       {"content3", "frameShadow", sunken},
                       {"content3", "minimumSize", QSize(40, 25)},
                       {"content4", "rowCount", 1},
                       {"content4", "columnCount", 1},
                       {"content4", "editTriggers", QAbstractItemView::NoEditTriggers},
                       {"content4", "selectionMode", QAbstractItemView::NoSelection},
                       {"content5", "minimumHeight", 200}});
    const auto* table = qobject_cast<QTableWidget*>(contents[4]);
    for (const QHeaderView* header : {table->horizontalHeader(), table->verticalHeader()}) {
        QVERIFY(header->isHidden());
        QCOMPARE(header->sectionResizeMode(0), QHeaderView::Stretch);
    }
}

void FormsTest::sectionHeaders_data()
{
    QTest::addColumn<bool>("mainPanel");
    QTest::addColumn<int>("section");
    QTest::addColumn<QString>("text");
    QTest::addRow("search") << true << 0 << "Search";
    QTest::addRow("configure") << false << 0 << "Configure";
    QTest::addRow("preview") << false << 1 << "Preview";
}

void FormsTest::sectionHeaders()
{
    QFETCH(bool, mainPanel);
    QFETCH(int, section);
    QFETCH(QString, text);
    QWidget* const page = mainPanel ? static_cast<QWidget*>(make<PV3DPartHarbor_2D>()) : make<PreviewUI>();
    auto* tree = page->findChild<QTreeWidget*>();
    QTreeWidgetItem* const item = tree->topLevelItem(section);
    QVERIFY(item->isExpanded());
    auto* header = qobject_cast<QtCategoryButton*>(tree->itemWidget(item, 0));
    QVERIFY(header != nullptr);
    header->setObjectName("header");
    checkValues(page, {{"header", "text", text},
                       {"header", "flat", true},
                       {"header", "layoutDirection", Qt::RightToLeft},
                       {"header", "maximumHeight", 24},
                       {"header", "styleSheet",
                        "padding-left: 3px; padding-right: 3px;padding-top: 1px; padding-bottom: "
                        "1px;border:1px solid #828790;text-align:left"}});
    QCOMPARE(header->contentsMargins(), QMargins(0, 50, 0, 0));
    QVERIFY(header->font().bold());
    QVERIFY(!header->icon().isNull());
}

void FormsTest::backButtons_data()
{
    QTest::addColumn<bool>("results");
    QTest::addRow("results page") << true;
    QTest::addRow("detail page") << false;
}

void FormsTest::backButtons()
{
    QFETCH(bool, results);
    QWidget* const page = results ? static_cast<QWidget*>(make<PartHarbor_2D>()) : make<PreviewUI>();
    checkValues(page, {{"pushButton", "minimumSize", QSize(25, 25)},
                       {"pushButton", "text", ""},
                       {"pushButton", "toolTip", "Back"}});
    auto* button = page->findChild<QPushButton*>("pushButton");
    QCOMPARE(button->pos(), QPoint(0, 0));
    QCOMPARE(button->iconSize(), button->size());
    QVERIFY(!button->icon().isNull());
}

void FormsTest::translatedTexts()
{
    ShowingTranslator translator;
    QCoreApplication::installTranslator(&translator);
    auto* panel = make<PV3DPartHarbor_2D>();
    auto* results = make<PartHarbor_2D>();
    auto* row = new TableItem(results, results);
    auto* login = make<LogInPage>();
    auto* detail = make<PreviewUI>();
    QCoreApplication::removeTranslator(&translator);

    checkValues(panel, {{"", "windowTitle", "PartHarbor_2DMain|CircleInserter"}});
    checkValues(results, {{"", "windowTitle", "PartHarbor_2D|PartHarbor_2D"},
                          {"prev_pushButton", "text", "PartHarbor_2D|<"},
                          {"pushButton1", "text", "PartHarbor_2D|1"},
                          {"pushButton6", "text", "PartHarbor_2D|..."},
                          {"pushButton7", "text", "PartHarbor_2D|200"},
                          {"next_pushButton", "text", "PartHarbor_2D|>"},
                          {"pushButton", "toolTip", "Back"}});
    checkValues(row, {{"", "windowTitle", "TableItem|TableItem"},
                      {"namelabel", "text", "TableItem|Name : "},
                      {"desclabel", "text", "TableItem|Description :"},
                      {"catlabel", "text", "TableItem|Category :"}});
    checkValues(login, {{"", "windowTitle", "LogInPage|LogInPage"},
                        {"LogIn_pushButton", "text", "LogInPage|Log In"},
                        {"checkBox", "text", "LogInPage|Remember Me"}});
    QVERIFY(login->findChild<QLabel*>("TitleLabel")->text().startsWith("LogInPage|<html>"));
    checkValues(detail, {{"", "windowTitle", "PreviewUI|PreviewUI"}, {"pushButton", "toolTip", "Back"}});
    QStringList texts;
    for (const auto* button : detail->findChildren<QtCategoryButton*>())
        texts.append(button->text());
    texts.append(panel->findChild<QtCategoryButton*>()->text());
    QCOMPARE(texts, QStringList({"QObject|Configure", "QObject|Preview", "QObject|Search"}));
    for (const auto* label : detail->findChildren<QLabel*>())
        QVERIFY(!label->text().contains('|'));
}

void FormsTest::interfaces_data()
{
    QTest::addColumn<const QMetaObject*>("type");
    QTest::addColumn<QStringList>("methods");
    QTest::addRow("main panel") << &PV3DPartHarbor_2D::staticMetaObject
                                << QStringList{"clicked()",
                                               "SendData()",
                                               "CategoryButtonPressed(int)",
                                               "on_line_edit()",
                                               "SetAccessToken(QNetworkReply*)",
                                               "GetAPIKey(QNetworkReply*)",
                                               "SetModelData(QNetworkReply*)"};
    QTest::addRow("results page") << &PartHarbor_2D::staticMetaObject
                                  << QStringList{"ModelData(QNetworkReply*)", "ReleaseTask(int)",
                                                 "OnPushButtonClicked(int)", "OnBackButtonClick()"};
    QTest::addRow("row") << &TableItem::staticMetaObject
                         << QStringList{"Iamgedata(QNetworkReply*)", "PreviewDownloaded(QNetworkReply*)",
                                        "Preview()"};
    QTest::addRow("login page") << &LogInPage::staticMetaObject << QStringList{"OnClick()"};
    QTest::addRow("label") << &ClickableLabel::staticMetaObject << QStringList{"clicked()", "release()"};
    QTest::addRow("header") << &QtCategoryButton::staticMetaObject << QStringList{};
    QTest::addRow("detail page")
        << &PreviewUI::staticMetaObject
        << QStringList{
               "CategoryButtonPressed(int)",  "OnBackbuttonclicked()",      "SetModelData(QNetworkReply*)",
               "DragAndDrop(QNetworkReply*)", "GetDownloadURL()",           "httpReadyRead()",
               "httpDownloadFinished()",      "ConfigData(QNetworkReply*)", "ConfigParamData(QNetworkReply*)",
               "switchcall(QString)"};
}

void FormsTest::interfaces()
{
    QFETCH(const QMetaObject*, type);
    QStringList methods;
    for (int i = type->methodOffset(); i < type->methodCount(); ++i)
        methods.append(QString::fromLatin1(type->method(i).methodSignature()));
    QTEST(methods, "methods");
}

QTEST_MAIN(FormsTest)
#include "FormsTest.moc"
