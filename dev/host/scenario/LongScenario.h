#pragma once

#include "dev/host/scenario/TourStep.h"

namespace devhost
{

class HostSteps;
class PaneSteps;
class PlacementSteps;
struct Options;

/// The scenario of a longer session: a failed login, three searches, twelve page changes, four detail pages,
/// two placed drawings of one part, and one that is not placed after all.
///
/// Pages are also turned and left before their results have come, so that late replies meet hidden pages.
/// @param options account and search terms. The steps' makers must outlive the scenario.
Scenario longScenario(const HostSteps& host, const PaneSteps& pane, const PlacementSteps& placement,
                      const Options& options);

} // namespace devhost
