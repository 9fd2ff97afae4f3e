#pragma once

#include "dev/host/model/BlockGeometry.h"
#include "dev/host/model/DrawingUnit.h"

#include <QString>

#include <optional>

namespace devhost
{

/// What came of reading a drawing file.
struct DwgContent {
    std::optional<BlockGeometry> geometry; ///< Nothing when the file cannot be read.
    QString problem; ///< One sentence for the user when it cannot be read or draws nothing; else empty.
    DrawingUnit unit = DrawingUnit::None; ///< The file's own.
    double factor = 1.0;                  ///< What the file's lengths were multiplied by.
};

/// Reads the lines of a DWG file of release R2000 to R2002 through GDAL's CAD driver.
///
/// The driver tells no linetypes, so they follow from the layers' names: hidden lines lie on a layer with
/// "hidden" in its name, centre lines on one with "centre" or "center". Colours are those of the layers. A
/// file of any content is answered, never with more than a million points.
/// @param unit what lengths are converted to from the file's unit (INSUNITS); None leaves them as they are.
DwgContent readDwg(const QString& file, DrawingUnit unit = DrawingUnit::None);

} // namespace devhost
