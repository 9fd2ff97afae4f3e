#include "dev/host/scenario/ScenarioRunner.h"
#include "dev/host/scenario/Screenshots.h"
#include "dev/host/scenario/UserInput.h"
#include "dev/host/window/MainWindow.h"
#include "tests/support/FatalWarnings.h"

#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using devhost::Observation;
using devhost::TourStep;

Q_DECLARE_METATYPE(devhost::TourStep)

namespace
{

TourStep step(const QString& name, std::function<QString()> act, std::function<Observation()> look)
{
    TourStep made;
    made.name = name;
    made.act = std::move(act);
    made.look = std::move(look);
    made.seconds = 1;
    return made;
}

QString openBox(const QString& text)
{
    QMessageBox(QMessageBox::Information, "Title", text, QMessageBox::Ok).exec();
    return QString();
}

} // namespace

/// A tour that overlooks something proves nothing: what its hand must not reach, and what must end a
/// scenario.
class TourTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_warnings = std::make_unique<test::FatalWarnings>(); }
    void cleanup() { m_warnings.reset(); }

    void outOfReach();
    void scenariosEndAtTheFirstFailure_data();
    void scenariosEndAtTheFirstFailure();

private:
    std::unique_ptr<test::FatalWarnings> m_warnings;
};

void TourTest::outOfReach()
{
    QWidget window;
    window.resize(200, 100);
    const auto reach = [&window](const std::function<void(QPushButton & button)>& obstruct) {
        QPushButton button("Button", &window);
        button.show();
        window.show();
        const QSignalSpy clicks(&button, &QPushButton::clicked);
        obstruct(button);
        const QString problem = devhost::userInput::click(&button);
        return clicks.isEmpty() ? problem : "clicked" + problem;
    };
    const auto isNamed = [&](const char* what, const std::function<void(QPushButton & button)>& obstruct) {
        const QString problem = reach(obstruct);
        QVERIFY2(problem.contains(what) && !problem.startsWith("clicked"),
                 qPrintable(QString(what) + ": " + problem));
    };
    QCOMPARE(reach([](QPushButton&) {}), QString("clicked"));
    isNamed("hidden", [](QPushButton& button) { button.hide(); });
    isNamed("disabled", [](QPushButton& button) { button.setEnabled(false); });
    isNamed("outside", [&](QPushButton& button) { button.move(window.width(), 0); });
    QWidget cover(&window);
    isNamed("covered", [&](QPushButton& button) {
        cover.setGeometry(button.geometry());
        cover.raise();
        cover.show();
    });
    QMessageBox box(&window);
    isNamed("behind", [&](QPushButton&) {
        cover.hide();
        box.setModal(true);
        box.show();
    });
}

void TourTest::scenariosEndAtTheFirstFailure_data()
{
    QTest::addColumn<TourStep>("failing");
    const auto nothing = [] { return QString(); };
    const auto seen = [] { return Observation{true, "the outcome"}; };
    TourStep boxWanted = step("want a box", nothing, seen);
    boxWanted.box = "wanted";
    QTest::newRow("no outcome") << step("look in vain", nothing, [] {
        return Observation{false, "nothing"};
    });
    QTest::newRow("cannot be done") << step(
        "reach in vain", [] { return QString("out of reach"); }, seen);
    QTest::newRow("no box") << boxWanted;
    QTest::newRow("a box nobody asked for") << step(
        "open a box", [] { return openBox("unexpected"); }, seen);
    boxWanted.act = [] { return openBox("another"); };
    QTest::newRow("another box") << boxWanted;
}

void TourTest::scenariosEndAtTheFirstFailure()
{
    QFETCH(const TourStep, failing);
    const QTemporaryDir folder;
    devhost::MainWindow window{devhost::HostSettings()};
    window.show();
    devhost::Screenshots screenshots(folder.path(), window);
    bool wentOn = false;
    const auto goOn = [&] {
        wentOn = true;
        return QString();
    };
    QVERIFY(!devhost::ScenarioRunner(window, screenshots).play({failing, step("go on", goOn, [] {
                                                                    return Observation{true, "more"};
                                                                })}));
    QVERIFY(!wentOn);
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    QVERIFY(!QDir(folder.path()).entryList({"01-*-failed.png"}).isEmpty());
}

QTEST_MAIN(TourTest)
#include "TourTest.moc"
