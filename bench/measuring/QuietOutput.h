#pragma once

namespace bench
{

/// To be called first in main(): nothing is shown on a screen, and of what is logged only warnings are
/// written, without those that a platform off the screen always gives.
void quietOutput();

} // namespace bench
