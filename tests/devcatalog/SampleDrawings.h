#pragma once

#include "devcatalog/drawings/Drawing.h"

#include <string>
#include <vector>

namespace test
{

struct SampleDrawing {
    /// Fit for a file name.
    std::string name;
    devcatalog::Drawing drawing;
};

/// Drawings made by hand that between them reach every branch of the DWG writer, and one of every family of
/// parts in every view.
std::vector<SampleDrawing> sampleDrawings();

/// The one named "plate": a line of each kind, circles, and a title that the code page does not hold.
devcatalog::Drawing plate();

} // namespace test
