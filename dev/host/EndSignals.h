#pragma once

namespace devhost
{

/// Has the signals that ask the program to end, as Ctrl+C in its console sends one, end all event loops
/// instead of the process: what owns files, as the add-in does of drawings that it downloads, is then
/// destroyed and removes them.
///
/// Called once, with an application object. The exit code is 128 and the signal's number, as shells have it.
/// Another signal of the same kind ends the process at once, should the event loop be busy.
void endByEventLoopAtSignals();

} // namespace devhost
