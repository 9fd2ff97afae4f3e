#pragma once

#include "dev/host/scenario/TourStep.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QObject>
#include <QPointer>
#include <QTimer>

class QMessageBox;

namespace devhost
{

class MainWindow;
class Screenshots;

/// Plays a scenario step by step, prints what was seen, and saves a picture of each step.
///
/// A box that a step opens, and the host's prompt, run event loops of their own within that step. So nothing
/// waits here: a timer, which runs in any event loop, does the next thing that there is to do.
class ScenarioRunner final : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive the player.
    ScenarioRunner(MainWindow& window, Screenshots& screenshots);

    /// Plays the scenario up to the first step without its outcome; then closes what is still open.
    /// @return whether all outcomes were seen.
    bool play(const Scenario& scenario);

private:
    void report(const QString& name, const Observation& observation);
    void startStep(int index);
    bool isPlaying() const;
    bool isActing() const;
    void tick();
    void meet(QMessageBox& box);
    void judge(const QMessageBox& box);
    void act();
    void look();
    void fail(const QString& seen);
    void leave();
    void savePicture(const QString& title) const;

    MainWindow& m_window;
    Screenshots& m_screenshots;
    QTimer m_timer;
    QEventLoop m_loop;

    Scenario m_scenario;
    int m_index = 0;
    int m_number = 0; // Of the step reported last, counted through all scenarios.
    bool m_failed = false;

    // Of the current step:
    bool m_acted = false;
    bool m_boxMet = false;
    bool m_retrying = false;
    QString m_lastSeen;
    QString m_lastBoxLine;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceAttempt;

    QPointer<QMessageBox> m_openBox;
    int m_actionLoopLevel = -1; // Depth of event loops in which an action runs.
};

} // namespace devhost
