#pragma once

#include "bench/measuring/Steps.h"

namespace bench
{

/// @return what the first connect takes in a process of its own, whose host has shown a window before.
/// Ends the program with a message where that process fails.
StepTime measureFirstConnect(const QString& library);

/// In the process that measureFirstConnect() made: connects, and tells how long it took.
/// main() begins with this. @return whether this is that process.
bool connectIfAsked(int argc, char** argv);

} // namespace bench
