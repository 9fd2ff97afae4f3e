#include "common/DarkTheme.h"
#include "common/DarkTitleBar.h"
#include "devhost/model/HostApplication.h"
#include "tests/devhost/ScriptedHostView.h"
#include "tests/support/FatalWarnings.h"

#include <QFile>
#include <QTest>
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
    void init();
    void cleanup();

    void theThemeIsReadOnce_data();
    void theThemeIsReadOnce();
    void withoutAnAnswerItStaysUnread();
    void titleBar_data();
    void titleBar();
    void withoutAWindowManagerNoWindowIsMade();

private:
    std::unique_ptr<test::FatalWarnings> m_warnings;
    std::unique_ptr<test::ScriptedHostView> m_view;
    std::shared_ptr<devhost::HostApplication> m_host;
};

void DarkStyleTest::init()
{
    m_warnings = std::make_unique<test::FatalWarnings>();
    m_view = std::make_unique<test::ScriptedHostView>();
    m_host = std::make_shared<devhost::HostApplication>(*m_view);
    g_darkMode = DarkModeUnread;
    g_windowAttributeSetter = platformWindowAttributeSetter();
    s_calls.clear();
}

void DarkStyleTest::cleanup()
{
    m_host.reset();
    m_view.reset();
    m_warnings.reset();
}

void DarkStyleTest::theThemeIsReadOnce_data()
{
    QTest::addColumn<quint32>("flag");
    QTest::addColumn<bool>("hostIsDark");
    QTest::addColumn<bool>("dark");
    QTest::addColumn<int>("reads");
    QTest::newRow("light host") << DarkModeUnread << false << false << 1;
    QTest::newRow("dark host") << DarkModeUnread << true << true << 1;
    QTest::newRow("read before as light") << 0U << true << false << 0;
    QTest::newRow("read before as another value") << 2U << false << true << 0;
}

void DarkStyleTest::theThemeIsReadOnce()
{
    QFETCH(quint32, flag);
    QFETCH(bool, hostIsDark);
    g_darkMode = flag;
    m_host->settings().darkTheme = hostIsDark;
    QTEST(isDarkTheme(m_host.get()), "dark");
    m_host->settings().darkTheme = !hostIsDark;
    QTEST(isDarkTheme(m_host.get()), "dark");
    QTEST(m_host->journal().lines().count("ApplicationOptions.GetApplicationOptionInt16(48)"), "reads");
}

void DarkStyleTest::withoutAnAnswerItStaysUnread()
{
    QVERIFY(isDarkTheme(nullptr));
    m_host->answers().fail("GetApplicationOptions", PVRESULT_True);
    QVERIFY(isDarkTheme(m_host.get()));
    QCOMPARE(g_darkMode, DarkModeUnread);
    m_host->answers().clear();
    QVERIFY(!isDarkTheme(m_host.get()));
}

Q_DECLARE_METATYPE(WindowAttributeSetter)

void DarkStyleTest::titleBar_data()
{
    QTest::addColumn<WindowAttributeSetter>("setter");
    QTest::addColumn<int>("attributes");
    QTest::newRow("accepted") << WindowAttributeSetter(setAttribute<0>) << 1;
    QTest::newRow("refused") << WindowAttributeSetter(setAttribute<-2147024809L>) << 2;
    QTest::newRow("refused by a positive result") << WindowAttributeSetter(setAttribute<1>) << 2;
}

void DarkStyleTest::titleBar()
{
    QFETCH(WindowAttributeSetter, setter);
    QFETCH(int, attributes);
    g_windowAttributeSetter = setter;
    QWidget widget;
    applyDarkStyle(&widget);

    const std::vector<AttributeCall> both{{widget.winId(), 20, 1}, {widget.winId(), 19, 1}};
    QVERIFY(s_calls == std::vector<AttributeCall>(both.begin(), both.begin() + attributes));
    QFile sheet(":/3DPH/Resource/PV3DPartHarborDarkMode.qss");
    QVERIFY(sheet.open(QIODevice::ReadOnly));
    QCOMPARE(widget.styleSheet(), QString::fromUtf8(sheet.readAll()));
}

void DarkStyleTest::withoutAWindowManagerNoWindowIsMade()
{
    g_windowAttributeSetter = nullptr;
    QWidget widget;
    applyDarkStyle(&widget);
    QCOMPARE(widget.internalWinId(), WId(0));
    QVERIFY(!widget.styleSheet().isEmpty());
}

QTEST_MAIN(DarkStyleTest)
#include "DarkStyleTest.moc"
