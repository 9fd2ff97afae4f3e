#include "devhost/tour/RoadPlayer.h"

#include "devhost/tour/Screenshots.h"
#include "devhost/tour/UserInput.h"
#include "devhost/window/MainWindow.h"
#include "devhost/window/PlacementPrompt.h"

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

constexpr int tickMilliseconds = 20;
constexpr int retryMilliseconds = 500;

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

RoadPlayer::RoadPlayer(MainWindow& window, Screenshots& screenshots)
    : m_window(window), m_screenshots(screenshots)
{
    m_timer.setInterval(tickMilliseconds);
    // Queued, because a timer is not delivered again before its receiver has returned.
    connect(&m_timer, &QTimer::timeout, this, &RoadPlayer::tick, Qt::QueuedConnection);
}

bool RoadPlayer::play(const Road& road)
{
    m_road = road;
    m_failed = false;
    startStep(0);
    m_timer.start();
    m_loop.exec();
    m_timer.stop();
    return !m_failed;
}

void RoadPlayer::report(const QString& name, const Sight& sight)
{
    ++m_number;
    print(QString("%1 %2  %3: %4")
              .arg(sight.isOutcome ? "ok    " : "FAILED")
              .arg(m_number, 2)
              .arg(name, sight.text));
    savePicture(sight.isOutcome ? name : name + " failed");
}

void RoadPlayer::startStep(int index)
{
    m_index = index;
    m_acted = m_boxMet = m_retrying = false;
    m_lastSeen.clear();
    m_lastBoxLine.clear();
    m_sinceStart.start();
}

bool RoadPlayer::isPlaying() const
{
    return !m_failed && m_index < m_road.size();
}

/// An action is only interrupted where it has started an event loop of its own.
bool RoadPlayer::isActing() const
{
    return m_actionLoopLevel >= QThread::currentThread()->loopLevel();
}

void RoadPlayer::tick()
{
    if (isActing())
        return;
    if (QMessageBox* box = visibleBox())
        meet(*box);
    else if (!isPlaying())
        leave();
    else if (m_sinceStart.hasExpired(m_road.at(m_index).seconds * qint64(1000)))
        fail(QString("after %1 s: %2").arg(m_road.at(m_index).seconds).arg(m_lastSeen));
    else if (m_acted)
        look();
    else
        act();
}

void RoadPlayer::meet(QMessageBox& box)
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

void RoadPlayer::judge(const QMessageBox& box)
{
    const TourStep& step = m_road.at(m_index);
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

void RoadPlayer::act()
{
    if (m_retrying && m_sinceAttempt.elapsed() < retryMilliseconds)
        return;
    m_sinceAttempt.start();
    m_acted = true; // Already, for a box that the action opens is met before it returns.
    const int index = m_index;
    const auto action = m_road.at(index).act;
    if (!action)
        return;
    const QScopedValueRollback<int> acting(m_actionLoopLevel, QThread::currentThread()->loopLevel());
    const QString problem = action();
    if (!problem.isEmpty() && index == m_index) {
        m_acted = false;
        m_lastSeen = problem;
    }
}

void RoadPlayer::look()
{
    const TourStep& step = m_road.at(m_index);
    if (!step.box.isEmpty() && !m_boxMet) {
        m_lastSeen = QString("no box said \"%1\"").arg(step.box);
        return;
    }
    const Sight sight = step.look ? step.look() : Sight{true, QString("the box said so and was closed")};
    m_lastSeen = sight.text;
    if (!sight.isOutcome)
        return;
    report(step.name, sight);
    startStep(m_index + 1);
}

void RoadPlayer::fail(const QString& seen)
{
    m_failed = true;
    report(m_road.at(m_index).name, {false, seen});
}

/// Ends the road once nothing is open any more.
void RoadPlayer::leave()
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

void RoadPlayer::savePicture(const QString& title) const
{
    if (!m_screenshots.save(m_number, title))
        print(QString("           the picture cannot be saved in %1").arg(m_screenshots.folder().path()));
}

} // namespace devhost
