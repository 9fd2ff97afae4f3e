#pragma once

#include "dev/host/scenario/TourStep.h"

namespace devhost
{

class HostSteps;
class PaneSteps;
class PlacementSteps;
struct Options;

/// The scenario from the add-in's connection to one block in the drawing, each part of the add-in once.
/// @param options account and search term. The steps' makers must outlive the scenario.
Scenario shortScenario(const HostSteps& host, const PaneSteps& pane, const PlacementSteps& placement,
                       const Options& options);

} // namespace devhost
