#pragma once

#include "devhost/tour/TourStep.h"

namespace devhost
{

class HostSteps;
class PaneSteps;
class PlacementSteps;
struct Options;

/// The road from the add-in's connection to one block in the drawing, each part of the add-in once.
/// @param options account and search term. The steps' makers must outlive the road.
Road shortRoad(const HostSteps& host, const PaneSteps& pane, const PlacementSteps& placement,
               const Options& options);

} // namespace devhost
