#pragma once

namespace bench
{

/// To be called first in main(): nothing is shown on a screen, and of what is logged only warnings are
/// written, without those that come wherever there is no screen or no session.
void quietOutput();

} // namespace bench
