#pragma once

#include "devcatalog/drawings/Drawing.h"
#include "devcatalog/drawings/DrawingExtents.h"
#include "devcatalog/drawings/DwgHandle.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace devcatalog
{

/// A day and the milliseconds passed of it, as the format dates things.
struct DwgDate {
    std::uint32_t julianDay = 0;
    std::uint32_t milliseconds = 0;
};

/// The date in every file, 1 January 2002: a clock would make equal drawings differ.
constexpr DwgDate dwgDate = {2452276, 0};

/// Units of a drawing (INSUNITS): centimetres.
constexpr int dwgInsertionUnits = 5;

struct DwgLayer {
    DwgHandle handle = 0;
    /// In the file's code page.
    std::string name;
    int colour = 7;
    /// The format's own number of a line width.
    int lineweightIndex = 0;
    DwgHandle linetype = 0;
};

/// A checked drawing with everything that its objects and header variables share.
struct DwgDocument {
    /// In the file's code page.
    std::string title;
    /// One for each LineKind, in that order.
    std::array<DwgLayer, 3> layers;
    std::vector<Entity> entities;
    std::optional<Extents> extents;
    /// The entities have consecutive handles from here.
    DwgHandle firstEntity = 0;

    const DwgLayer& layerOf(const Entity& entity) const
    {
        return layers.at(static_cast<std::size_t>(entity.kind));
    }
    DwgHandle lastEntity() const { return firstUnusedHandle() - 1; }
    DwgHandle firstUnusedHandle() const { return firstEntity + static_cast<DwgHandle>(entities.size()); }
};

/// Checks a drawing and gives handles to layers and entities.
/// @throws std::invalid_argument as writeDwg() does.
DwgDocument makeDwgDocument(const Drawing& drawing);

} // namespace devcatalog
