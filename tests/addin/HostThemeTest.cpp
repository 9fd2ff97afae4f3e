#include "tests/addin/LoadedAddIn.h"

#include <QFile>
#include <QTabWidget>
#include <QTest>

namespace
{

const QString LightIcon = ":/3DPH/Resource/3DPH_32x-32.svg";
const QString DarkIcon = ":/3DPH/Resource/Dark/3DPH-32.svg";
const QString OptionRead = "ApplicationOptions.GetApplicationOptionInt16(48)";

QString darkSheet()
{
    QFile file(":/3DPH/Resource/PV3DPartHarborDarkMode.qss");
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

/// What the host's colour theme does to icons and boxes of the loaded library, in which it is read once.
class HostThemeTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_addIn = std::make_unique<test::LoadedAddIn>(); }
    void cleanup();

    void iconsAndBoxes_data();
    void iconsAndBoxes();
    void theFirstThemeStays();
    void anUnreadThemeIsReadLater();

private:
    /// @return the small and the large icon of the user command; empty without one.
    QStringList icons() const;
    /// Has the panel refuse an empty search. @return the box.
    test::SeenMessageBox errorBox();
    int optionReads();

    std::unique_ptr<test::LoadedAddIn> m_addIn;
};

void HostThemeTest::cleanup()
{
    QCOMPARE(m_addIn->leave(), QStringList());
    m_addIn.reset();
}

QStringList HostThemeTest::icons() const
{
    const auto userCommand = m_addIn->host().findUserCommand("UserCommand_3DPH");
    return userCommand ? QStringList{userCommand->properties().smallIcon, userCommand->properties().largeIcon}
                       : QStringList();
}

test::SeenMessageBox HostThemeTest::errorBox()
{
    m_addIn->shown<QTabWidget>("QTabWidget")->setCurrentIndex(1);
    QTest::mouseClick(m_addIn->shown("QPushButton", "SearchButton"), Qt::LeftButton);
    return m_addIn->answerer().boxes().last();
}

int HostThemeTest::optionReads()
{
    return m_addIn->takeCalls().count(OptionRead);
}

void HostThemeTest::iconsAndBoxes_data()
{
    QTest::addColumn<int>("theme");
    QTest::addColumn<QString>("failing"); // call of the host
    QTest::addColumn<QString>("icon");
    QTest::addColumn<int>("reads");
    QTest::addRow("dark") << 1 << QString() << DarkIcon << 1;
    QTest::addRow("dark in another way") << 2 << QString() << DarkIcon << 1;
    QTest::addRow("no options") << 0 << "GetApplicationOptions" << DarkIcon << 0;
    QTest::addRow("no value") << 0 << OptionRead.section('(', 0, 0) << LightIcon << 1;
    QTest::addRow("name taken, light") << 0 << "name" << QString() << 0;
}

void HostThemeTest::iconsAndBoxes()
{
    QFETCH(int, theme);
    QFETCH(QString, failing);
    QFETCH(QString, icon);
    devhost::HostSettings& settings = m_addIn->host().settings();
    settings.darkTheme = theme != 0;
    settings.darkThemeValue = theme;
    if (failing == "name")
        m_addIn->host().addCommand("3DPH");
    else if (!failing.isEmpty())
        m_addIn->host().answers().fail(failing, PVRESULT_False);
    m_addIn->connect();
    QTEST(optionReads(), "reads");
    QCOMPARE(icons(), icon.isNull() ? QStringList() : QStringList({icon, icon}));
    QVERIFY(icon.isNull() || QFile::exists(icon));

    errorBox();
    // A refused connection is a login without a token.
    m_addIn->shown<QTabWidget>("QTabWidget")->setCurrentIndex(0);
    QTest::mouseClick(m_addIn->shown("QPushButton", "LogIn_pushButton"), Qt::LeftButton);
    QVERIFY(test::waitUntil([this] { return m_addIn->answerer().boxes().size() == 2; }));
    QCOMPARE(m_addIn->answerer().boxes().last().icon, QMessageBox::Information);

    QVERIFY(darkSheet().size() > 1000);
    for (const test::SeenMessageBox& box : m_addIn->answerer().boxes())
        QCOMPARE(box.styleSheet, icon == LightIcon ? QString() : darkSheet());
}

void HostThemeTest::theFirstThemeStays()
{
    bool& hostIsDark = m_addIn->host().settings().darkTheme;
    for (const bool dark : {false, true}) {
        hostIsDark = dark;
        m_addIn->connect();
        const QStringList first = icons();
        QCOMPARE(first.first(), dark ? DarkIcon : LightIcon);
        hostIsDark = !dark;
        QCOMPARE(errorBox().styleSheet.isEmpty(), !dark);

        m_addIn->disconnect();
        m_addIn->takeCalls();
        m_addIn->connect();
        QCOMPARE(optionReads(), 1); // at every connect, if only to be kept once
        QCOMPARE(icons(), first);
        QCOMPARE(errorBox().styleSheet.isEmpty(), !dark);

        // A fresh library reads it anew.
        m_addIn->disconnect();
        QVERIFY(m_addIn->library().unload());
        QVERIFY(m_addIn->library().load());
    }
}

void HostThemeTest::anUnreadThemeIsReadLater()
{
    m_addIn->host().answers().fail("GetApplicationOptions", PVRESULT_False);
    m_addIn->connect();
    QVERIFY(!errorBox().styleSheet.isEmpty());
    m_addIn->disconnect();
    m_addIn->host().answers().clear();
    m_addIn->connect();
    QCOMPARE(icons().first(), LightIcon);
    QVERIFY(errorBox().styleSheet.isEmpty());
}

QTEST_MAIN(HostThemeTest)
#include "HostThemeTest.moc"
