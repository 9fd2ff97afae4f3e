#pragma once

#include "dev/dwg/Document.h"
#include "dev/dwg/Entities.h"
#include "dev/dwg/Object.h"

namespace dwg
{

/// The extents and the limits of one space. Both stand in its layout and in the header variables.
struct SpaceBounds {
    /// Nothing when the space is empty.
    std::optional<Extents> extents;
    Extents limits;
};

SpaceBounds boundsOf(Space space, const Document& document);

/// Writes EXTMIN and EXTMAX; an empty space has the first far beyond the second.
void writeExtents(BitWriter& data, const std::optional<Extents>& extents);

/// Writes what makes up model space and the empty paper space: their entries in the block table, their BLOCK
/// and ENDBLK and their layouts. The entities of model space are written apart.
void addSpaces(Records& records, const Document& document);

} // namespace dwg
