#pragma once

#include <QElapsedTimer>
#include <QString>

#include <functional>

namespace bench
{

/// What a step took from its start to its outcome, in nanoseconds.
struct StepTime {
    qint64 threadTime = 0; ///< processor time of this thread, without the looking for the outcome
    qint64 wallTime = 0;
};

/// Turns the event loop until the condition holds. A condition that never does ends the program.
/// @param what the outcome's name in the message of that end.
/// @return the processor time that the looking took, in nanoseconds.
qint64 waitFor(const char* what, const std::function<bool()>& condition);

/// Acts, and waits for the outcome to be there and painted.
StepTime measureStep(const char* what, const std::function<void()>& act, const std::function<bool()>& isDone);

/// Ends the program with a message.
[[noreturn]] void giveUp(const QString& problem);

} // namespace bench
