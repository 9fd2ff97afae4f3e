#include "tests/addin/LoadedAddIn.h"

#include <QBoxLayout>
#include <QFrame>
#include <QGridLayout>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

/// What stands in the pane after a connect.
class DockedPaneTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theTabsFillThePane();
    void theTabs();
    void theHelpButtonStandsInTheCorner();
    void onlyTitlesAreTranslated();
    void aPaneIsHandedOutAgain();

private:
    QTabWidget* tabs() const { return m_addIn->shown<QTabWidget>("QTabWidget"); }

    std::unique_ptr<test::LoadedAddIn> m_addIn;
};

void DockedPaneTest::init()
{
    m_addIn = std::make_unique<test::LoadedAddIn>();
    m_addIn->connect();
}

void DockedPaneTest::cleanup()
{
    QCOMPARE(m_addIn->leave(), QStringList());
    m_addIn.reset();
}

void DockedPaneTest::theTabsFillThePane()
{
    QWidget* const pane = m_addIn->view().paneWidget();
    QCOMPARE(pane->windowTitle(), QString("3D PARTHARBOR"));
    QVERIFY(pane->isVisible());
    QCOMPARE(pane->minimumWidth(), 350);
    pane->resize(100, 700);
    QCOMPARE(pane->width(), 350);

    const auto* layout = qobject_cast<QVBoxLayout*>(pane->layout());
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->count(), 1);
    QVERIFY(layout->itemAt(0)->widget() == tabs());
}

void DockedPaneTest::theTabs()
{
    QCOMPARE(tabs()->count(), 2);
    QCOMPARE(tabs()->currentIndex(), 0);
    QCOMPARE(tabs()->tabToolTip(0), QString());
    QVERIFY(tabs()->widget(0)->inherits("LogInPage"));
    QVERIFY(tabs()->widget(1)->inherits("ParentWidget"));

    const auto* grid = qobject_cast<QGridLayout*>(tabs()->widget(1)->layout());
    QVERIFY(grid != nullptr);
    const QWidget* panel = grid->itemAt(grid->count() - 1)->widget();
    QVERIFY(panel->inherits("PV3DPartHarbor_2D"));
    tabs()->setCurrentIndex(1);
    QVERIFY(panel->isVisible());

    // The bar follows its texts where the widget itself needs no other room.
    QTabBar* bar = tabs()->tabBar();
    for (const char* text : {"2D drawings", "2D", "2D drawings"}) {
        bar->setTabText(1, text);
        QTRY_COMPARE(bar->width(), bar->sizeHint().width());
    }
}

void DockedPaneTest::theHelpButtonStandsInTheCorner()
{
    const auto* corner = qobject_cast<QFrame*>(tabs()->cornerWidget(Qt::TopRightCorner));
    QVERIFY(corner != nullptr && corner->isVisible());
    QCOMPARE(corner->frameShape(), QFrame::StyledPanel);
    QCOMPARE(corner->frameShadow(), QFrame::Plain);
    const auto* layout = qobject_cast<QHBoxLayout*>(corner->layout());
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->stretch(0), 129);
    QCOMPARE(layout->itemAt(0)->alignment(), Qt::Alignment());
    const auto* help = qobject_cast<QPushButton*>(layout->itemAt(0)->widget());
    QVERIFY(help != nullptr && help->inherits("HelpButton"));
    QCOMPARE(help->toolTip(), QString("Help"));
    QCOMPARE(help->text(), QString());
    QCOMPARE(help->maximumWidth(), 24);
    const QIcon icon(":/3DPH/Resource/Help.PNG");
    QCOMPARE(help->icon().pixmap(help->iconSize()).toImage(), icon.pixmap(help->iconSize()).toImage());
    QVERIFY(!icon.pixmap(help->iconSize()).isNull());
}

void DockedPaneTest::onlyTitlesAreTranslated()
{
    QCOMPARE(tabs()->tabText(0), QString("Log In"));
    QCOMPARE(tabs()->tabText(1), QString("2D"));
    m_addIn->disconnect();
    m_addIn->host().settings().language = 7;
    m_addIn->connect();
    QVERIFY(tabs()->tabText(0) != "Log In");
    QCOMPARE(tabs()->tabText(0), QCoreApplication::translate("QObject", "Log In"));
    QCOMPARE(tabs()->tabText(1), QCoreApplication::translate("QObject", "2D"));
    QCOMPARE(tabs()->tabToolTip(1), QString("Creates a 2D representation of the model"));
    QCOMPARE(m_addIn->shown("HelpButton")->toolTip(), QString("Help"));
}

/// A host may keep the widget of its pane, and with it the layout that the pane got first.
void DockedPaneTest::aPaneIsHandedOutAgain()
{
    m_addIn->disconnect();
    m_addIn->view().keepPane();
    for (int i = 0; i < 2; ++i) {
        QVERIFY(m_addIn->connect());
        QTRY_VERIFY(tabs() != nullptr); // a layout shows what it gets later at the event loop's next turn
        theTabsFillThePane();
        m_addIn->disconnect();
        QVERIFY(m_addIn->view().paneWidget()->findChildren<QWidget*>().isEmpty());
    }
}

QTEST_MAIN(DockedPaneTest)
#include "DockedPaneTest.moc"
