#include "service/SessionValues.h"
#include "tests/panel/PanelFixture.h"

#include <QPushButton>
#include <QtTest>

using test::PanelFixture;

/// The host's colour theme as the panel takes it up. It is read once in a process, so each function runs in a
/// process of its own.
class ThemeTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_panel = std::make_unique<PanelFixture>(); }
    void cleanup() { m_panel.reset(); }

    void light();
    void dark();
    void unread();

private:
    void check(bool dark);
    QString styleSheetOfABox();

    std::unique_ptr<PanelFixture> m_panel;
};

/// Has the shown main panel refuse an empty term.
QString ThemeTest::styleSheetOfABox()
{
    QTest::mouseClick(m_panel->shown<QPushButton>("SearchButton"), Qt::LeftButton);
    return m_panel->answerer().boxes().last().styleSheet;
}

void ThemeTest::check(bool dark)
{
    const auto reads = [this] {
        return m_panel->host().journal().lines().filter("GetApplicationOptionInt16(48").size();
    };
    m_panel->host().settings().darkTheme = dark;
    for (int search = 1; search < 3; ++search) {
        m_panel->showResults();
        QCOMPARE(reads(), 1);
        QVERIFY(m_panel->shown<QWidget>("PartHarbor_2D")->styleSheet().isEmpty());
        QTest::mouseClick(m_panel->shown<QPushButton>("pushButton"), Qt::LeftButton);
        QCOMPARE(styleSheetOfABox().contains("#333538"), dark);
        QCOMPARE(styleSheetOfABox().isEmpty(), !dark);
        m_panel->host().settings().darkTheme = !dark; // too late for this process
    }
}

void ThemeTest::light()
{
    check(false);
}

void ThemeTest::dark()
{
    check(true);
}

void ThemeTest::unread()
{
    m_panel->host().settings().darkTheme = false;
    QVERIFY(styleSheetOfABox().contains("#333538")); // counts as dark
}

QTEST_MAIN(ThemeTest)
#include "ThemeTest.moc"
