#pragma once

#include "dev/dwg/Drawing.h"

#include <string>
#include <vector>

namespace test
{

struct SampleDrawing {
    /// Fit for a file name.
    std::string name;
    dwg::Drawing drawing;
};

/// Drawings made by hand that between them reach every branch of the DWG writer, and one of every family of
/// parts in every view.
std::vector<SampleDrawing> sampleDrawings();

/// The one named "plate": a line of each kind, circles, and a title that the code page does not hold.
dwg::Drawing plate();

} // namespace test
