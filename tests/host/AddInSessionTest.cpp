#include "dev/host/AddInSession.h"
#include "dev/host/EndSignals.h"
#include "dev/host/Options.h"
#include "dev/host/window/CommandLine.h"
#include "dev/host/window/MainWindow.h"
#include "tests/support/FatalWarnings.h"

#include <QAction>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <csignal>
#include <memory>
#include <tuple>

using devhost::AddInLibrary;
using devhost::AddInSession;
using devhost::MainWindow;
using devhost::Options;

namespace
{

/// @return exit code, output and error output of run.sh where there is no program to install or build with.
std::tuple<int, QString, QString> runScript(const QStringList& arguments)
{
    QProcess script;
    QProcessEnvironment environment;
    environment.insert("PATH", "/nowhere");
    script.setProcessEnvironment(environment);
    script.start(QStandardPaths::findExecutable("bash"), QStringList{RUN_SCRIPT} + arguments);
    script.waitForFinished();
    return {script.exitCode(), script.readAllStandardOutput(), script.readAllStandardError()};
}

} // namespace

class AddInSessionTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_warnings = std::make_unique<test::FatalWarnings>(); }
    void cleanup() { m_warnings.reset(); }

    void unusableLibraries();
    void choicesTakeEffectAtTheNextConnect();
    void signalsEndTheEventLoops();
    void optionsAreRead();
    void wrongOptionsAreRefused_data();
    void wrongOptionsAreRefused();

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

    const QString before = QDir::currentPath();
    QDir::setCurrent(QTemporaryDir().path()); // Which is gone by the next line.
    QVERIFY(session.start());
    QVERIFY(window.commandLine().history().last().contains("cannot be written"));
    QDir::setCurrent(before);
}

void AddInSessionTest::signalsEndTheEventLoops()
{
    if (QSysInfo::kernelType() == "winnt")
        QSKIP("There Ctrl+C is an event of the console");
    devhost::endByEventLoopAtSignals();
    for (const int signal : {SIGINT, SIGTERM}) {
        QTimer::singleShot(0, this, [signal] {
            QTimer::singleShot(0, qApp, [signal] { std::raise(signal); });
            QEventLoop().exec(); // As a prompt and a box have one of their own.
        });
        QCOMPARE(QApplication::exec(), 128 + signal);
    }
}

void AddInSessionTest::optionsAreRead()
{
    QString error;
    const Options all =
        devhost::parseOptions({"devhost", "--library", STANDIN_LIBRARY, "--theme=dark", "--web-help",
                               "--catalog", "none", "--tour", "shots", "--account", "me:with:colon", "--term",
                               "hex bolt", "--quiet", "--language", "20", "--size", "800x600"},
                              "default.so", &error);
    QCOMPARE(all.library, QString(STANDIN_LIBRARY));
    QVERIFY(all.settings.darkTheme && all.settings.webHelp && !all.embeddedCatalog && all.tour && all.quiet);
    QCOMPARE(all.settings.language, 20);
    QCOMPARE(all.windowSize, QSize(800, 600));
    QCOMPARE(all.tourFolder, QString("shots"));
    QCOMPARE(all.accountUser, QString("me"));
    QCOMPARE(all.accountPassword, QString("with:colon"));
    QCOMPARE(all.searchTerms, QStringList{"hex bolt"});

    const Options tour =
        devhost::parseOptions({"devhost", "--tour", "--theme", "dark"}, "default.so", &error);
    QVERIFY(tour.tour && tour.settings.darkTheme && tour.embeddedCatalog && !tour.tourFolder.isEmpty());
    QCOMPARE(tour.library, QString("default.so"));
    const MainWindow window({});
    for (const QAction* language : window.findChildren<QAction*>(QRegularExpression("^language")))
        devhost::parseOptions({"devhost", "--language", language->objectName().mid(8)}, "default.so", &error);
    const QString help = devhost::parseOptions({"devhost", "--help", "--wrong"}, "", &error).help;
    QVERIFY(help.contains("--language NUMBER"));
    QCOMPARE(error, QString());
    QCOMPARE(runScript({"--help"}), std::make_tuple(0, help, QString()));
}

/// By the program, and by run.sh before it installs or builds anything for them.
void AddInSessionTest::wrongOptionsAreRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("refusal");
    const auto row = [](const QString& arguments, const QString& refusal) {
        QTest::newRow(qPrintable(arguments)) << arguments.split(' ') << refusal;
    };
    const QString languages =
        "--language: 1 German, 2 English, 3 Turkish, 5 Polish, 6 Japanese, 7 French, 8 Chinese "
        "(Traditional), 9 Chinese (Simplified), 10 Italian, 11 Spanish, 13 Korean, 18 Russian, "
        "19 Portuguese (Brazil) or 20 Czech is wanted, ";
    row("--language 99", languages + "not \"99\".");
    row("--language German", languages + "not \"German\".");
    row("--language --theme dark", languages + "and nothing is there.");
    row("--theme blue --help", "--theme: light or dark is wanted, not \"blue\".");
    row("--catalog remote", "--catalog: embedded or none is wanted, not \"remote\".");
    row("--drawings=", "--drawings: whole, noise or cut is wanted, not \"\".");
    row("--account me", "--account: USER:PASSWORD is wanted, not \"me\".");
    row("--ca no-such.pem", "--ca: a FILE that can be read is wanted, not \"no-such.pem\".");
    row("--term", "--term: TEXT is wanted, and nothing is there.");
    row("--slow=3", "--slow: no value is wanted, not \"3\".");
    for (const char* size : {"1280", "799x600", "800x599", "7681x600", "800x4321", "8e2x600", "-800x600"})
        row(QString("--size=%1").arg(size),
            QString("--size: 800x600 to 7680x4320 is wanted, not \"%1\".").arg(size));
    for (const char* other : {"--help-all", "-h", "part.dwg", "@"})
        row(other, QString("%1: there is no such option; --help lists them.").arg(other));
}

void AddInSessionTest::wrongOptionsAreRefused()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, refusal);
    QString error;
    devhost::parseOptions(QStringList{"devhost"} + arguments, "default.so", &error);
    QCOMPARE(error, refusal);

    QCOMPARE(runScript(arguments), std::make_tuple(2, QString(), refusal + '\n'));
}

QTEST_MAIN(AddInSessionTest)
#include "AddInSessionTest.moc"
