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

} // namespace

/// What others may rely on in how the pages are built, and what looks like a slip but is none. The pages
/// stand alone here, as their constructors leave them.
class FormsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void sectionsAndTables();
    void searchButtonStandsOverItsLine();
    void resultsPageHasNoSheet();
    void translatedTexts();

private:
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

void FormsTest::sectionsAndTables()
{
    make<PV3DPartHarbor_2D>();
    make<PreviewUI>();
    make<PartHarbor_2D>();
    const auto trees = m_parent->findChildren<QTreeWidget*>();
    QCOMPARE(trees.size(), 2);
    for (const QTreeWidget* tree : trees) {
        for (int i = 0; i < tree->topLevelItemCount(); ++i) {
            QTreeWidgetItem* const item = tree->topLevelItem(i);
            QVERIFY(item->childCount() == 1 && item->child(0)->isDisabled());
            const auto* header = qobject_cast<QtCategoryButton*>(tree->itemWidget(item, 0));
            QVERIFY(header->isFlat() && header->font().bold() && header->maximumHeight() == 24);
            QCOMPARE(header->layoutDirection(), Qt::RightToLeft);
        }
    }
    const auto tables = m_parent->findChildren<QTableWidget*>();
    QCOMPARE(tables.size(), 2);
    for (const QTableWidget* table : tables) {
        QVERIFY(table->horizontalHeader()->isHidden() && table->verticalHeader()->isHidden());
        QCOMPARE(table->editTriggers(), QAbstractItemView::NoEditTriggers);
        QCOMPARE(table->selectionMode(), QAbstractItemView::NoSelection);
    }
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

/// Each text is translated in its form's context, what the code adds in Qt's.
void FormsTest::translatedTexts()
{
    ShowingTranslator translator;
    QCoreApplication::installTranslator(&translator);
    make<PV3DPartHarbor_2D>();
    make<LogInPage>();
    make<PreviewUI>();
    auto* results = make<PartHarbor_2D>();
    new TableItem(results, results);
    const ParentWidget container(m_parent.get());
    QCoreApplication::removeTranslator(&translator);

    QStringList contexts;
    QStringList untranslated;
    for (const QWidget* widget : m_parent->findChildren<QWidget*>()) {
        for (const char* property : {"windowTitle", "text", "toolTip"}) {
            const QString text = widget->property(property).toString();
            if (text.contains('|'))
                contexts.append(text.section('|', 0, 0));
            else if (!text.isEmpty())
                untranslated.append(text);
        }
    }
    QStringList counts;
    for (const char* context : {"LogInPage", "PartHarbor_2DMain", "PartHarbor_2D", "TableItem", "PreviewUI",
                                "ParentWidget", "QObject"})
        counts.append(QString("%1 %2").arg(context).arg(contexts.count(context)));
    QCOMPARE(counts.join(", "), QString("LogInPage 8, PartHarbor_2DMain 1, PartHarbor_2D 10, TableItem 4, "
                                        "PreviewUI 1, ParentWidget 1, QObject 3"));
    QCOMPARE(untranslated.join(", "), QString("Back, View : , Configuration : , Back"));
    QCOMPARE(container.layout()->contentsMargins(), QMargins(2, 2, 1, 1));
    QCOMPARE(container.findChild<QFrame*>("frame")->frameShape(), QFrame::StyledPanel);
    QCOMPARE(container.findChild<QFrame*>("frame")->frameShadow(), QFrame::Raised);
}

QTEST_MAIN(FormsTest)
#include "FormsTest.moc"
