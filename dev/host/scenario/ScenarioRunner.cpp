#include "dev/host/scenario/ScenarioRunner.h"

#include "dev/host/scenario/Screenshots.h"
#include "dev/host/scenario/UserInput.h"
#include "dev/host/window/MainWindow.h"
#include "dev/host/window/PlacementPrompt.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QTextStream>
#include <QThread>
#include <QWindow>

namespace devhost
{

namespace
{

constexpr int TickMilliseconds = 20;
constexpr int RetryMilliseconds = 500;

void print(const QString& line)
{
    QTextStream(stdout) << line << '\n';
}

/// @return the message box on the screen; null when there is none.
QMessageBox* visibleBox()
{
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    const bool isShown = box != nullptr && box->isVisible() && box->windowHandle() != nullptr &&
                         box->windowHandle()->isExposed();
    return isShown ? box : nullptr;
}

QAbstractButton* closingButton(const QMessageBox& box)
{
    QAbstractButton* escape = box.escapeButton();
    return escape != nullptr ? escape : box.buttons().value(0);
}

} // namespace

ScenarioRunner::ScenarioRunner(MainWindow& window, Screenshots& screenshots)
    : m_window(window), m_screenshots(screenshots)
{
    m_timer.setInterval(TickMilliseconds);
    // Queued, because a timer is not delivered again before its receiver has returned.
    connect(&m_timer, &QTimer::timeout, this, &ScenarioRunner::tick, Qt::QueuedConnection);
}

bool ScenarioRunner::play(const Scenario& scenario)
{
    m_scenario = scenario;
    m_failed = false;
    startStep(0);
    m_timer.start();
    m_loop.exec();
    m_timer.stop();
    return !m_failed && m_index == m_scenario.size(); // The program may have been told to end.
}

void ScenarioRunner::report(const QString& name, const Observation& observation)
{
    ++m_number;
    print(QString("%1 %2  %3: %4")
              .arg(observation.isOutcome ? "ok    " : "FAILED")
              .arg(m_number, 2)
              .arg(name, observation.text));
    savePicture(observation.isOutcome ? name : name + " failed");
}

void ScenarioRunner::startStep(int index)
{
    m_index = index;
    m_acted = m_boxMet = m_retrying = false;
    m_lastSeen.clear();
    m_lastBoxLine.clear();
    m_sinceStart.start();
}

bool ScenarioRunner::isPlaying() const
{
    return !m_failed && m_index < m_scenario.size();
}

/// An action is only interrupted where it has started an event loop of its own.
bool ScenarioRunner::isActing() const
{
    return m_actionLoopLevel >= QThread::currentThread()->loopLevel();
}

void ScenarioRunner::tick()
{
    if (isActing())
        return;
    if (QMessageBox* box = visibleBox())
        meet(*box);
    else if (!isPlaying())
        leave();
    else if (m_sinceStart.hasExpired(m_scenario.at(m_index).seconds * qint64(1000)))
        fail(QString("after %1 s: %2").arg(m_scenario.at(m_index).seconds).arg(m_lastSeen));
    else if (m_acted)
        look();
    else
        act();
}

void ScenarioRunner::meet(QMessageBox& box)
{
    if (m_openBox != &box) {
        m_openBox = &box;
        const QString line = QString("           box \"%1\": \"%2\"").arg(box.windowTitle(), box.text());
        if (line != m_lastBoxLine) // A step that is tried again meets it often.
            print(line);
        m_lastBoxLine = line;
        if (isPlaying())
            judge(box);
    }
    const QScopedValueRollback<int> acting(m_actionLoopLevel, QThread::currentThread()->loopLevel());
    userInput::click(closingButton(box)); // Where that cannot be done yet, at the next tick.
}

void ScenarioRunner::judge(const QMessageBox& box)
{
    const TourStep& step = m_scenario.at(m_index);
    if (!step.box.isEmpty() && box.text() == step.box) {
        m_boxMet = true;
        ++m_number;
        savePicture(step.name + " box");
        --m_number;
    } else if (!step.retryBox.isEmpty() && box.text() == step.retryBox) {
        m_retrying = true;
        m_acted = false;
        m_lastSeen = QString("a box said \"%1\"").arg(box.text());
    } else {
        fail(QString("a box said \"%1\"").arg(box.text()));
    }
}

void ScenarioRunner::act()
{
    if (m_retrying && m_sinceAttempt.elapsed() < RetryMilliseconds)
        return;
    m_sinceAttempt.start();
    m_acted = true; // Already, for a box that the action opens is met before it returns.
    const int index = m_index;
    const auto action = m_scenario.at(index).act;
    if (!action)
        return;
    const QScopedValueRollback<int> acting(m_actionLoopLevel, QThread::currentThread()->loopLevel());
    const QString problem = action();
    if (!problem.isEmpty() && index == m_index) {
        m_acted = false;
        m_lastSeen = problem;
    }
}

void ScenarioRunner::look()
{
    const TourStep& step = m_scenario.at(m_index);
    if (!step.box.isEmpty() && !m_boxMet) {
        m_lastSeen = QString("no box said \"%1\"").arg(step.box);
        return;
    }
    const Observation observation =
        step.look ? step.look() : Observation{true, QString("the box said so and was closed")};
    m_lastSeen = observation.text;
    if (!observation.isOutcome)
        return;
    report(step.name, observation);
    startStep(m_index + 1);
}

void ScenarioRunner::fail(const QString& seen)
{
    m_failed = true;
    report(m_scenario.at(m_index).name, {false, seen});
}

/// Ends the scenario once nothing is open any more.
void ScenarioRunner::leave()
{
    if (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
    else if (QWidget* dialog = QApplication::activeModalWidget())
        dialog->close();
    else if (PlacementPrompt* prompt = m_window.currentPrompt())
        prompt->cancel();
    else
        m_loop.quit();
}

void ScenarioRunner::savePicture(const QString& title) const
{
    if (!m_screenshots.save(m_number, title))
        print(QString("           the picture cannot be saved in %1").arg(m_screenshots.folder().path()));
}

} // namespace devhost
