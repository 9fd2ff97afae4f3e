#pragma once

#include "bench/measuring/PaneRun.h"

namespace bench
{

/// What hidden pages keep of the heap, in bytes a page; each is measured by playing one transition again and
/// again.
struct PageCosts {
    double resultsPage = 0;
    double detailPage = 0;
    double mainPanel = 0;
};

/// @param run at its main panel, and there again afterwards.
/// @param repetitions of each transition.
PageCosts measurePageCosts(PaneRun& run, int repetitions);

} // namespace bench
