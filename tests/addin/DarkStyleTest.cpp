#include "common/DarkTheme.h"
#include "common/DarkTitleBar.h"
#include "tests/support/FatalWarnings.h"

#include <QFile>
#include <QFrame>
#include <QTest>
#include <QTreeWidget>
#include <QWidget>

#include <memory>

namespace
{

struct AttributeCall {
    std::uintptr_t window;
    unsigned long attribute;
    std::int32_t value;

    bool operator==(const AttributeCall& other) const
    {
        return window == other.window && attribute == other.attribute && value == other.value;
    }
};

std::vector<AttributeCall> s_calls;

template <long result>
long setAttribute(std::uintptr_t window, unsigned long attribute, std::int32_t value)
{
    s_calls.push_back({window, attribute, value});
    return result;
}

} // namespace

/// The theme flag and the dark style of one widget, by their own functions.
class DarkStyleTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_warnings = std::make_unique<test::FatalWarnings>(); }
    void cleanup() { m_warnings.reset(); }

    void onlyZeroIsLight();
    void theOlderNumberIsTriedWhereTheNewerIsRefused();
    void withoutAWindowManagerNoWindowIsMade();
    void colours();

private:
    std::unique_ptr<test::FatalWarnings> m_warnings;
};

void DarkStyleTest::onlyZeroIsLight()
{
    for (const quint32 flag : {0U, 1U, 2U, DarkModeUnread}) {
        g_darkMode = flag;
        QCOMPARE(isDarkTheme(nullptr), flag != 0);
        QCOMPARE(g_darkMode, flag);
    }
}

void DarkStyleTest::theOlderNumberIsTriedWhereTheNewerIsRefused()
{
    for (const auto& setter : {setAttribute<0>, setAttribute<-2147024809L>, setAttribute<1>}) {
        s_calls.clear();
        g_windowAttributeSetter = setter;
        QWidget widget;
        applyDarkStyle(&widget);

        std::vector<AttributeCall> calls{{widget.winId(), 20, 1}};
        if (setter != setAttribute<0>)
            calls.push_back({widget.winId(), 19, 1});
        QVERIFY(s_calls == calls);
        QFile sheet(":/3DPH/Resource/PV3DPartHarborDarkMode.qss");
        QVERIFY(sheet.open(QIODevice::ReadOnly));
        QCOMPARE(widget.styleSheet(), QString::fromUtf8(sheet.readAll()));
    }
}

void DarkStyleTest::withoutAWindowManagerNoWindowIsMade()
{
    g_windowAttributeSetter = nullptr;
    QWidget widget;
    applyDarkStyle(&widget);
    QCOMPARE(widget.internalWinId(), WId(0));
    QVERIFY(!widget.styleSheet().isEmpty());
}

void DarkStyleTest::colours()
{
    QWidget window;
    auto* tree = new QTreeWidget(&window);
    auto* frame = new QFrame(&window);
    frame->setFrameShape(QFrame::StyledPanel);
    applyDarkStyle(&window);
    window.show();
    QCOMPARE(window.palette().color(QPalette::Window), QColor("#333538"));
    QCOMPARE(window.palette().color(QPalette::WindowText), QColor("#cfcfcf"));
    QCOMPARE(tree->palette().color(QPalette::Base), QColor("#1e2023"));
    QCOMPARE(frame->grab().toImage().pixelColor(0, 0), QColor("#4a4a4a"));
    tree->setFocus();
    QTRY_COMPARE(tree->grab().toImage().pixelColor(0, 0), QColor("#284c93"));
    window.setEnabled(false);
    QCOMPARE(window.palette().color(QPalette::WindowText), QColor("#646464"));
}

QTEST_MAIN(DarkStyleTest)
#include "DarkStyleTest.moc"
