#include "common/DarkTheme.h"
#include "panel/LogInPage.h"
#include "panel/PV3DPartHarbor_2D.h"
#include "panel/ParentWidget.h"
#include "panel/PartHarbor_2D.h"
#include "panel/PreviewUI.h"
#include "panel/QtCategoryButton.h"
#include "panel/TableItem.h"
#include "tests/panel/PanelFixture.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QTranslator>
#include <QTreeWidget>

namespace
{

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

struct Text {
    const char* object; ///< empty for the page itself
    const char* property;
    QString text;
};

/// @return for each widget its class, row, column, and the rows and columns that it spans.
QStringList cellsOf(const QGridLayout* grid)
{
    QStringList cells;
    for (int i = 0; i < grid->count(); ++i) {
        int row = -1;
        int column = -1;
        int rows = -1;
        int columns = -1;
        grid->getItemPosition(i, &row, &column, &rows, &columns);
        const QString type = grid->itemAt(i)->widget()->metaObject()->className();
        cells.append(QString("%1 %2 %3 %4 %5").arg(type).arg(row).arg(column).arg(rows).arg(columns));
    }
    return cells;
}

const QString Html = "<html><head/><body><p><span style=\"%1\">%2</span></p></body></html>";
const QString Anchor = "<a href=\"https://catalog.test:8443/%1\\\">%2</a>";

} // namespace

/// What others may rely on in how the pages are built, and what looks like a slip but is none. The pages
/// stand alone here, as their constructors leave them.
class FormsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void objectNames();
    void sections_data();
    void sections();
    void searchButtonStandsOverItsLine();
    void tables();
    void resultsPageHasNoSheet();
    void translatedTexts();

private:
    void compareTexts(QWidget* page, std::initializer_list<Text> texts);
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

void FormsTest::compareTexts(QWidget* page, std::initializer_list<Text> texts)
{
    for (const Text& expected : texts) {
        const QObject* object =
            *expected.object == '\0' ? page : page->findChild<QObject*>(QString(expected.object));
        QVERIFY2(object != nullptr, expected.object);
        QCOMPARE(object->property(expected.property).toString(), expected.text);
    }
}

void FormsTest::objectNames()
{
    ParentWidget container(nullptr);
    auto* results = make<PartHarbor_2D>();
    const QVector<QPair<QWidget*, QStringList>> pages{
        {&container, {"ParentWidget", "frame", "gridLayout"}},
        {make<PV3DPartHarbor_2D>(), {"PartHarbor_2DMain", "PH_2DTabPage", "SearchLine", "SearchButton"}},
        {results,
         {"PartHarbor_2D", "pushButton", "tableWidget", "widget", "prev_pushButton", "pushButton1",
          "pushButton2", "pushButton3", "pushButton4", "pushButton5", "pushButton6", "pushButton7",
          "next_pushButton"}},
        {new TableItem(results, results),
         {"TableItem", "label", "iconpushButton", "line_2", "namelabel", "namevaluelabel", "desclabel",
          "descvaluelabel", "line", "catlabel", "catvaluelabel"}},
        {make<LogInPage>(),
         {"LogInPage", "TitleLabel", "emailLabel", "email_lineEdit", "passLabel", "Pass_lineEdit_2",
          "LogIn_pushButton", "checkBox", "ForgotLabel", "signUPLabel"}},
        {make<PreviewUI>(), {"PreviewUI", "frame", "pushButton", "preview_page"}},
    };
    for (const auto& [page, names] : pages) {
        QCOMPARE(page->objectName(), names.first());
        for (const QString& name : names.mid(1))
            QVERIFY2(page->findChild<QObject*>(name) != nullptr, qPrintable(name));
    }
}

void FormsTest::sections_data()
{
    QTest::addColumn<bool>("mainPanel");
    QTest::addColumn<int>("section");
    QTest::addColumn<QStringList>("cells");
    QTest::addRow("Search") << true << 0 << QStringList{"QLineEdit 0 0 1 129", "QPushButton 0 1 1 129"};
    QTest::addRow("Configure") << false << 0
                               << QStringList{"QLabel 0 0 1 129", "QComboBox 1 0 1 129", "QLabel 2 0 1 129",
                                              "QLabel 3 0 1 129", "QTableWidget 4 0 1 129"};
    QTest::addRow("Preview") << false << 1 << QStringList{"ClickableLabel 0 0 1 129"};
}

void FormsTest::sections()
{
    QFETCH(bool, mainPanel);
    QFETCH(int, section);
    QWidget* const page = mainPanel ? static_cast<QWidget*>(make<PV3DPartHarbor_2D>()) : make<PreviewUI>();
    auto* tree = page->findChild<QTreeWidget*>();
    QTreeWidgetItem* const item = tree->topLevelItem(section);
    QCOMPARE(item->childCount(), 1);
    QVERIFY(item->child(0)->isDisabled());

    const auto* header = qobject_cast<QtCategoryButton*>(tree->itemWidget(item, 0));
    QCOMPARE(header->text(), QString(QTest::currentDataTag()));
    QCOMPARE(header->layoutDirection(), Qt::RightToLeft);
    QCOMPARE(header->contentsMargins(), QMargins(0, 50, 0, 0));
    QCOMPARE(header->maximumHeight(), 24);
    QVERIFY(header->isFlat() && header->font().bold());
    QCOMPARE(header->styleSheet(),
             QString("padding-left: 3px; padding-right: 3px;padding-top: 1px; padding-bottom: 1px;"
                     "border:1px solid #828790;text-align:left"));

    const QWidget* const content = tree->itemWidget(item->child(0), 0);
    QCOMPARE(content->styleSheet(), QString("margin-bottom: 5px;"));
    const auto* grid = qobject_cast<QGridLayout*>(content->layout());
    QTEST(cellsOf(grid), "cells");
    QCOMPARE(grid->contentsMargins(), QMargins(5, 3, 5, 3));
    QCOMPARE(grid->verticalSpacing(), 0);
    QCOMPARE(grid->horizontalSpacing() == 270, mainPanel);
}

void FormsTest::searchButtonStandsOverItsLine()
{
    for (const int width : {350, 800}) {
        m_panel->window().resize(width, 700);
        auto* line = m_panel->shown<QLineEdit>("SearchLine");
        auto* button = m_panel->shown<QPushButton>("SearchButton");
        QTRY_VERIFY(button->width() < 60 && button->geometry().right() + 20 > line->parentWidget()->width());
        QVERIFY(line->geometry().right() > button->x());
        QVERIFY(line->geometry().right() - 30 <= button->x()); // its visible end
    }
}

void FormsTest::tables()
{
    auto* results = make<PartHarbor_2D>()->findChild<QTableWidget*>();
    for (const auto* table : {results, make<PreviewUI>()->findChild<QTableWidget*>()}) {
        QVERIFY(table->horizontalHeader()->isHidden() && table->verticalHeader()->isHidden());
        QCOMPARE(table->editTriggers(), QAbstractItemView::NoEditTriggers);
        QCOMPARE(table->selectionMode(), QAbstractItemView::NoSelection);
    }
    QCOMPARE(results->selectionBehavior(), QAbstractItemView::SelectColumns);
    QVERIFY(results->isSortingEnabled() && results->showGrid() && !results->tabKeyNavigation());
}

/// In either theme it looks for one where there is none.
void FormsTest::resultsPageHasNoSheet()
{
    for (const bool dark : {false, true}) {
        m_panel->host().settings().darkTheme = dark;
        g_darkMode = DarkModeUnread;
        QVERIFY(make<PartHarbor_2D>()->styleSheet().isEmpty());
        QCOMPARE(g_darkMode != 0, dark); // the page has read the theme
        m_panel->host().settings().darkTheme = !dark;
        QCOMPARE(isDarkTheme(&m_panel->host()), dark); // once
    }
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
    const ParentWidget container(m_parent.get());
    QCoreApplication::removeTranslator(&translator);

    QCOMPARE(container.windowTitle(), QString("ParentWidget|ParentWidget"));
    QCOMPARE(container.layout()->contentsMargins(), QMargins(2, 2, 1, 1));
    QCOMPARE(container.findChild<QFrame*>("frame")->frameShape(), QFrame::StyledPanel);
    QCOMPARE(container.findChild<QFrame*>("frame")->frameShadow(), QFrame::Raised);
    compareTexts(panel, {{"", "windowTitle", "PartHarbor_2DMain|CircleInserter"}});
    compareTexts(results, {{"", "windowTitle", "PartHarbor_2D|PartHarbor_2D"},
                           {"prev_pushButton", "text", "PartHarbor_2D|<"},
                           {"pushButton1", "text", "PartHarbor_2D|1"},
                           {"pushButton6", "text", "PartHarbor_2D|..."},
                           {"pushButton7", "text", "PartHarbor_2D|200"},
                           {"next_pushButton", "text", "PartHarbor_2D|>"},
                           {"pushButton", "toolTip", "Back"}});
    compareTexts(row, {{"", "windowTitle", "TableItem|TableItem"},
                       {"namelabel", "text", "TableItem|Name : "},
                       {"desclabel", "text", "TableItem|Description :"},
                       {"catlabel", "text", "TableItem|Category :"}});
    const QString forgotten = Anchor.arg("Login.aspx?ForgotPassword=true", "Forgot Password ?");
    const QString signUp = Anchor.arg("Register.aspx/", "SIGN UP");
    compareTexts(login,
                 {{"", "windowTitle", "LogInPage|LogInPage"},
                  {"TitleLabel", "text",
                   "LogInPage|" + Html.arg(" font-size:12pt; font-weight:600; ;", "3D PARTHARBOR")},
                  {"emailLabel", "text", "LogInPage|" + Html.arg(" font-size:9pt;", "Email Address : ")},
                  {"passLabel", "text", "LogInPage|" + Html.arg(" font-size:9pt;", "Password :")},
                  {"LogIn_pushButton", "text", "LogInPage|Log In"},
                  {"checkBox", "text", "LogInPage|Remember Me"},
                  {"checkBox", "styleSheet",
                   "QCheckBox::indicator::checked {image: url(:/3DPH/Resource/CheckBox_checked.PNG);}"},
                  {"ForgotLabel", "text",
                   "LogInPage|" + Html.arg(" font-size:9pt; color:#53c2fc;", forgotten) + "\n\n\n"},
                  {"signUPLabel", "text", "LogInPage|" + Html.arg(" color:#53c2fc;", signUp) + "\n\n"}});
    compareTexts(detail, {{"", "windowTitle", "PreviewUI|PreviewUI"}, {"pushButton", "toolTip", "Back"}});
    QStringList texts;
    for (const auto* button : detail->findChildren<QtCategoryButton*>())
        texts.append(button->text());
    texts.append(panel->findChild<QtCategoryButton*>()->text());
    for (const auto* label : detail->findChildren<QLabel*>())
        texts.append(label->text());
    QCOMPARE(texts, QStringList({"QObject|Configure", "QObject|Preview", "QObject|Search",
                                 "View : ", "Configuration : ", "", ""}));
}

QTEST_MAIN(FormsTest)
#include "FormsTest.moc"
