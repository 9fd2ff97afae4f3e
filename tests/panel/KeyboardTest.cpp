#include "panel/LogInPage.h"
#include "tests/panel/PanelFixture.h"
#include "tests/support/CannedReplies.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QPointer>
#include <QTabBar>
#include <QTest>

#include <algorithm>

using test::PanelFixture;

namespace
{

/// @return what a control is called: its object name or, where it has none, its text or its class.
QString nameOf(const QWidget* control)
{
    const auto* button = qobject_cast<const QAbstractButton*>(control);
    if (!control->objectName().isEmpty())
        return control->objectName();
    return button != nullptr ? button->text() : control->metaObject()->className();
}

} // namespace

/// The pages worked by keyboard alone.
class KeyboardTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_panel = std::make_unique<PanelFixture>(); }
    void cleanup() { m_panel.reset(); }

    void tabReachesEverything_data();
    void tabReachesEverything();
    void wholeWayByKeys();
    void iconsHaveNames();

private:
    void openPage(const QString& page);
    QStringList tabThrough(Qt::Key key);
    void tabTo(const QString& control);
    void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

    std::unique_ptr<PanelFixture> m_panel;
};

void KeyboardTest::openPage(const QString& page)
{
    m_panel->service().setReply(test::SearchOperationName, test::searchReply(test::hits(2)));
    if (page == "login") {
        auto* login = new LogInPage(&m_panel->host(), &m_panel->window());
        m_panel->window().setCurrentIndex(m_panel->window().addTab(login, "Log In"));
    } else if (page == "results") {
        m_panel->showResults();
        m_panel->window().resize(400, 320); // Has the second row out of sight.
    } else if (page == "detail") {
        m_panel->openFirstPart();
    }
    m_panel->window().tabBar()->setFocus();
}

/// Presses Tab or Backtab until the focus is on the tab bar again. @return where it was between.
QStringList KeyboardTest::tabThrough(Qt::Key key)
{
    constexpr int enough = 50;
    QStringList controls;
    for (int i = 0; i < enough; ++i) {
        press(key);
        if (QApplication::focusWidget() == m_panel->window().tabBar())
            break;
        const QWidget* focused = QApplication::focusWidget();
        const bool isSeen = focused->visibleRegion().boundingRect().height() > focused->height() / 2;
        controls.append(nameOf(focused) + (isSeen ? "" : " out of sight"));
    }
    return controls;
}

void KeyboardTest::tabTo(const QString& control)
{
    constexpr int enough = 50;
    for (int i = 0; i < enough && nameOf(QApplication::focusWidget()) != control; ++i)
        press(Qt::Key_Tab);
    QCOMPARE(nameOf(QApplication::focusWidget()), control);
}

void KeyboardTest::tabReachesEverything_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QStringList>("controls");
    // A label with a link is one stop, the link itself another. Trees hand the focus on to a header.
    QTest::addRow("login") << "login" << QStringList{"email_lineEdit", "Pass_lineEdit_2", "LogIn_pushButton",
                                                     "checkBox",       "ForgotLabel",     "ForgotLabel",
                                                     "signUPLabel",    "signUPLabel"};
    QTest::addRow("main panel") << "main" << QStringList{"SearchLine", "SearchButton", "Search"};
    QTest::addRow("results") << "results"
                             << QStringList{"pushButton",      "tableWidget",    "iconpushButton",
                                            "descvaluelabel",  "iconpushButton", "descvaluelabel",
                                            "prev_pushButton", "next_pushButton"};
    QTest::addRow("detail") << "detail" << QStringList{"pushButton",   "Configure",      "QComboBox",
                                                       "QTableWidget", "descvaluelabel", "Preview"};
}

void KeyboardTest::tabReachesEverything()
{
    QFETCH(QString, page);
    QFETCH(QStringList, controls);
    openPage(page);
    QCOMPARE(tabThrough(Qt::Key_Tab), controls);
    QStringList backwards = tabThrough(Qt::Key_Backtab);
    for (const char* tree : {"PH_2DTabPage", "preview_page"})
        backwards.removeOne(tree);
    std::reverse(backwards.begin(), backwards.end());
    controls.removeDuplicates();
    backwards.removeDuplicates();
    QCOMPARE(backwards, controls);
}

void KeyboardTest::wholeWayByKeys()
{
    m_panel->window().tabBar()->setFocus();
    tabTo("SearchLine");
    QTest::keyClicks(QApplication::focusWidget(), "bolt");
    press(Qt::Key_Tab);
    press(Qt::Key_Space); // the search button
    QTRY_VERIFY(m_panel->row(0) != nullptr);
    const QPointer<QWidget> firstRow(m_panel->row(0));
    tabTo("next_pushButton");
    press(Qt::Key_Space);
    QTRY_COMPARE(m_panel->sent(test::SearchOperationName, "pageNumber"), (QStringList{"1", "2"}));
    QTRY_VERIFY(firstRow.isNull() && m_panel->row(0) != nullptr);
    tabTo("iconpushButton");
    press(Qt::Key_Space);
    QCOMPARE(m_panel->shownPages(), QStringList("PreviewUI"));
    tabTo("QComboBox");
    press(Qt::Key_Down);
    QCOMPARE(m_panel->shown<QComboBox>()->currentText(), QString(" 4 View"));
    tabTo("pushButton");
    press(Qt::Key_Space);
    QCOMPARE(m_panel->shownPages(), QStringList("PartHarbor_2D"));
    tabTo("pushButton");
    press(Qt::Key_Space);
    QCOMPARE(m_panel->shownPages(), QStringList("PV3DPartHarbor_2D"));
}

void KeyboardTest::iconsHaveNames()
{
    const auto unnamed = [this] {
        QStringList controls;
        for (const auto* button : m_panel->container()->findChildren<QAbstractButton*>()) {
            // Parts of Qt's own controls have no need of one.
            const bool ours = !button->objectName().startsWith("qt_") &&
                              QString(button->metaObject()->className()) != "QTableCornerButton";
            if (ours && button->text().isEmpty() &&
                (button->accessibleName().isEmpty() || button->icon().isNull()))
                controls.append(nameOf(button));
        }
        return controls;
    };
    m_panel->openFirstPart();
    QTRY_COMPARE(unnamed(), QStringList()); // pictures come late
}

QTEST_MAIN(KeyboardTest)
#include "KeyboardTest.moc"
