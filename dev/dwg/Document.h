#pragma once

#include "dev/dwg/Drawing.h"
#include "dev/dwg/DrawingExtents.h"
#include "dev/dwg/Handle.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace dwg
{

/// A day and the milliseconds passed of it, as the format dates things.
struct Date {
    std::uint32_t julianDay = 0;
    std::uint32_t milliseconds = 0;
};

/// The date in every file, 1 January 2002: a clock would make equal drawings differ.
constexpr Date FileDate = {2452276, 0};

struct Layer {
    Handle handle = 0;
    /// In the file's code page.
    std::string name;
    int colour = 7;
    /// The format's own number of a line width.
    int lineweightIndex = 0;
    Handle linetype = 0;
};

/// A checked drawing with everything that its objects and header variables share.
struct Document {
    /// In the file's code page.
    std::string title;
    /// One for each LineKind, in that order.
    std::array<Layer, 4> layers;
    std::vector<Entity> entities;
    std::optional<Extents> extents;
    /// The format's number of the drawing's unit (INSUNITS).
    int insertionUnits = 0;
    double linetypeScale = 1.0;
    /// The entities have consecutive handles from here.
    Handle firstEntity = 0;

    const Layer& layerOf(const Entity& entity) const
    {
        return layers.at(static_cast<std::size_t>(entity.kind));
    }
    Handle lastEntity() const { return firstUnusedHandle() - 1; }
    Handle firstUnusedHandle() const { return firstEntity + static_cast<Handle>(entities.size()); }
};

/// Checks a drawing and gives handles to layers and entities.
/// @throws std::invalid_argument as writeDwg() does.
Document makeDwgDocument(const Drawing& drawing);

} // namespace dwg
