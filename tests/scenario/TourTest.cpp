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
using devhost::Scenario;
using devhost::TourStep;
/// Puts something between the hand and a button.
using Obstacle = std::function<void(QWidget& window, QPushButton& button)>;

Q_DECLARE_METATYPE(devhost::TourStep)
Q_DECLARE_METATYPE(Obstacle)

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
    void init();
    void cleanup();

    void outOfReach_data();
    void outOfReach();
    void scenariosEndAtTheFirstFailure_data();
    void scenariosEndAtTheFirstFailure();

private:
    bool play(const Scenario& scenario);

    std::unique_ptr<test::FatalWarnings> m_warnings;
    std::unique_ptr<QTemporaryDir> m_folder;
};

void TourTest::init()
{
    m_warnings = std::make_unique<test::FatalWarnings>();
    m_folder = std::make_unique<QTemporaryDir>();
}

void TourTest::cleanup()
{
    m_folder.reset();
    m_warnings.reset();
}

bool TourTest::play(const Scenario& scenario)
{
    devhost::MainWindow window{devhost::HostSettings()};
    window.show();
    devhost::Screenshots screenshots(m_folder->path(), window);
    return devhost::ScenarioRunner(window, screenshots).play(scenario);
}

void TourTest::outOfReach_data()
{
    QTest::addColumn<Obstacle>("obstruct");
    QTest::addColumn<QString>("named");
    const auto row = [](const char* named, const Obstacle& obstruct) {
        QTest::newRow(named) << obstruct << QString(named);
    };
    row("hidden", [](QWidget&, QPushButton& button) { button.hide(); });
    row("disabled", [](QWidget&, QPushButton& button) { button.setEnabled(false); });
    row("covered", [](QWidget& window, QPushButton& button) {
        auto* cover = new QWidget(&window);
        cover->setGeometry(button.geometry());
        cover->show();
    });
    row("outside", [](QWidget& window, QPushButton& button) { button.move(window.width(), 0); });
    row("behind", [](QWidget& window, QPushButton&) {
        auto* box = new QMessageBox(&window);
        box->setModal(true);
        box->show();
    });
}

void TourTest::outOfReach()
{
    QFETCH(const Obstacle, obstruct);
    QFETCH(const QString, named);
    QWidget window;
    window.resize(200, 100);
    auto* button = new QPushButton("Button", &window);
    window.show();
    QSignalSpy clicks(button, &QPushButton::clicked);
    QCOMPARE(devhost::userInput::click(button), QString());
    QCOMPARE(clicks.size(), 1);

    obstruct(window, *button);
    const QString problem = devhost::userInput::click(button);
    QVERIFY2(problem.contains(named), qPrintable(problem));
    QCOMPARE(clicks.size(), 1);
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
    bool wentOn = false;
    const auto goOn = [&] {
        wentOn = true;
        return QString();
    };
    QVERIFY(!play({failing, step("go on", goOn, [] { return Observation{true, "more"}; })}));
    QVERIFY(!wentOn);
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    QVERIFY(!QDir(m_folder->path()).entryList({"01-*-failed.png"}).isEmpty());
}

QTEST_MAIN(TourTest)
#include "TourTest.moc"
