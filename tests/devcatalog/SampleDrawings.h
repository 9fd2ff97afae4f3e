#pragma once

#include "devcatalog/drawings/Drawing.h"
#include "devcatalog/drawings/DrawingExtents.h"

#include <optional>
#include <string>
#include <vector>

namespace test
{

/// A drawing made by hand, with what is known of it.
struct SampleDrawing {
    /// Fit for a file name.
    std::string name;
    devcatalog::Drawing drawing;
    std::optional<devcatalog::Extents> extents;
};

/// Drawings that between them reach every branch of the DWG writer.
std::vector<SampleDrawing> sampleDrawings();

/// One of them.
SampleDrawing sampleDrawing(const std::string& name);

} // namespace test
