#include "dev/host/AddInSession.h"
#include "dev/host/Options.h"
#include "dev/host/window/CommandLine.h"
#include "dev/host/window/MainWindow.h"
#include "tests/support/FatalWarnings.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include <memory>

using devhost::AddInLibrary;
using devhost::AddInSession;
using devhost::MainWindow;
using devhost::Options;

class AddInSessionTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_warnings = std::make_unique<test::FatalWarnings>(); }
    void cleanup() { m_warnings.reset(); }

    void unusableLibraries();
    void choicesTakeEffectAtTheNextConnect();
    void optionsAreRead();
    void wrongOptionsAreNamed();

private:
    std::unique_ptr<test::FatalWarnings> m_warnings;
};

void AddInSessionTest::unusableLibraries()
{
    AddInLibrary missing("no-such-library");
    QVERIFY(!missing.load());
    QVERIFY(missing.errorString().contains("no-such-library"));

    AddInLibrary foreign(FOREIGN_LIBRARY);
    QVERIFY(!foreign.load());
    QVERIFY2(foreign.errorString().contains("no entry point"), qPrintable(foreign.errorString()));
    QVERIFY(!foreign.isMapped());

    MainWindow window({});
    AddInSession session("no-such-library", window);
    QVERIFY(!session.start());
    QVERIFY(window.commandLine().history().last().startsWith("No add-in: "));
}

void AddInSessionTest::choicesTakeEffectAtTheNextConnect()
{
    MainWindow window({});
    AddInSession session(STANDIN_LIBRARY, window);
    QVERIFY(session.start());
    QCOMPARE(window.commandLine().history().last(), QString("Add-in STAND-IN connected."));

    const auto* offer = window.findChild<QWidget*>("reconnectBar");
    for (const auto& [theme, isOffered] : {std::pair("darkTheme", true), std::pair("lightTheme", false)}) {
        window.findChild<QAction*>(theme)->trigger();
        QCOMPARE(!offer->isHidden(), isOffered);
    }
    window.findChild<QAction*>("language6")->trigger();
    QVERIFY(window.findChild<QLabel*>("reconnectText")->text().contains("Japanese"));
    window.findChild<QAction*>("darkTheme")->trigger();
    window.findChild<QAction*>("webHelp")->trigger();
    QCOMPARE(window.host().settings().language, 2);
    QVERIFY(!window.host().settings().webHelp);

    window.host().journal().clear();
    QVERIFY(!offer->isHidden());
    window.findChild<QPushButton*>("reconnectNow")->click();
    QVERIFY(offer->isHidden());
    QCOMPARE(window.host().journal().lines(),
             (QStringList{R"(RemoveUserInterface("STAND-IN"))", "GetLanguage()"}));
    QCOMPARE(window.host().settings().language, 6);
    QVERIFY(window.host().settings().darkTheme);
    QVERIFY(window.host().settings().webHelp);

    window.host().journal().clear();
    QVERIFY(session.stop());
    QCOMPARE(window.host().journal().lines(), QStringList{R"(RemoveUserInterface("STAND-IN"))"});
}

void AddInSessionTest::optionsAreRead()
{
    QString error;
    const Options all = devhost::parseOptions({"devhost", "--library", "other.so", "--theme", "dark",
                                               "--web-help", "--catalog", "none", "--tour", "shots",
                                               "--account", "me:with:colon", "--term", "hex bolt"},
                                              "default.so", &error);
    QCOMPARE(all.library, QString("other.so"));
    QVERIFY(all.settings.darkTheme && all.settings.webHelp && !all.embeddedCatalog && all.tour);
    QCOMPARE(all.tourFolder, QString("shots"));
    QCOMPARE(all.accountUser, QString("me"));
    QCOMPARE(all.accountPassword, QString("with:colon"));
    QCOMPARE(all.searchTerms, QStringList{"hex bolt"});

    const Options tour =
        devhost::parseOptions({"devhost", "--tour", "--theme", "dark"}, "default.so", &error);
    QVERIFY(tour.tour && tour.settings.darkTheme && tour.embeddedCatalog && !tour.tourFolder.isEmpty());
    QCOMPARE(tour.library, QString("default.so"));
    QCOMPARE(error, QString());
}

void AddInSessionTest::wrongOptionsAreNamed()
{
    const QVector<QStringList> wrong{
        {"--language", "German"},
        {"--theme", "blue"},
        {"--catalog", "remote"},
        {"--account", "me"},
        {"--drawings", "torn"},
        {"--size", "1280 by 800"},
        {"part.dwg"},
    };
    for (const QStringList& arguments : wrong) {
        QString error;
        devhost::parseOptions(QStringList{"devhost"} + arguments, "default.so", &error);
        QVERIFY2(error.contains(arguments.first()), qPrintable(arguments.join(' ') + ": " + error));
    }
}

QTEST_MAIN(AddInSessionTest)
#include "AddInSessionTest.moc"
