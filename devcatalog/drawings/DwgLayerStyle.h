#pragma once

#include <array>
#include <string>

namespace devcatalog
{

/// The layer on which the lines of one kind lie, and how its lines look. The kind itself decides the
/// linetype: continuous outlines, dashed hidden edges, dash-dotted centre lines.
struct DwgLayerStyle {
    /// UTF-8, 1 to 255 characters; control characters and any of <>/\":;?*|,=` are not allowed.
    std::string name;
    /// A number of the format's colour index (ACI), 1 to 255.
    int colour = 7;
    /// Hundredths of a millimetre; one of the widths that the format knows, such as 18, 25, 35 or 50.
    int lineweight = 25;
};

/// One style for each LineKind, in that order.
using DwgLayerStyles = std::array<DwgLayerStyle, 3>;

/// Outlines in the foreground colour, hidden edges in grey, centre lines in red; their widths are those of a
/// mechanical drawing of line group 0.5.
inline DwgLayerStyles standardLayerStyles()
{
    return {{{"Outline", 7, 50}, {"Hidden", 253, 35}, {"Centre", 1, 25}}};
}

} // namespace devcatalog
