#pragma once

#include "devcatalog/drawings/DwgDocument.h"
#include "devcatalog/drawings/DwgEntities.h"
#include "devcatalog/drawings/DwgObject.h"

namespace devcatalog
{

/// The extents and the limits of one space. Both stand in its layout and in the header variables.
struct DwgSpaceBounds {
    /// Nothing when the space is empty.
    std::optional<Extents> extents;
    Extents limits;
};

DwgSpaceBounds boundsOf(DwgSpace space, const DwgDocument& document);

/// Writes EXTMIN and EXTMAX; an empty space has the first far beyond the second.
void writeExtents(BitWriter& data, const std::optional<Extents>& extents);

/// Writes what makes up model space and the empty paper space: their entries in the block table, their BLOCK
/// and ENDBLK and their layouts. The entities of model space are written apart.
void addSpaces(DwgRecords& records, const DwgDocument& document);

} // namespace devcatalog
