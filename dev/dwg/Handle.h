#pragma once

#include <cstdint>

namespace dwg
{

/// The number by which objects of a DWG file name each other; 0 names none.
using Handle = std::uint32_t;

/// What a reference means for the life of the two objects.
enum class ReferenceKind { Self = 0, SoftOwner = 2, HardOwner = 3, SoftPointer = 4, HardPointer = 5 };

struct Reference {
    ReferenceKind kind = ReferenceKind::Self;
    Handle handle = 0;
};

constexpr Reference selfReference(Handle handle)
{
    return {ReferenceKind::Self, handle};
}
constexpr Reference softOwner(Handle handle)
{
    return {ReferenceKind::SoftOwner, handle};
}
constexpr Reference hardOwner(Handle handle)
{
    return {ReferenceKind::HardOwner, handle};
}
constexpr Reference softPointer(Handle handle)
{
    return {ReferenceKind::SoftPointer, handle};
}
constexpr Reference hardPointer(Handle handle)
{
    return {ReferenceKind::HardPointer, handle};
}

/// Handles of the objects that every drawing has. Any would do; these are the ones commonly seen.
namespace handles
{
constexpr Handle None = 0;
constexpr Handle BlockControl = 0x01;
constexpr Handle LayerControl = 0x02;
constexpr Handle StyleControl = 0x03;
constexpr Handle LinetypeControl = 0x05;
constexpr Handle ViewControl = 0x06;
constexpr Handle UcsControl = 0x07;
constexpr Handle ViewportControl = 0x08;
constexpr Handle ApplicationControl = 0x09;
constexpr Handle DimensionStyleControl = 0x0A;
constexpr Handle ViewportHeaderControl = 0x0B;
constexpr Handle NamedObjects = 0x0C;
constexpr Handle Groups = 0x0D;
constexpr Handle PlotStyles = 0x0E;
constexpr Handle NormalPlotStyle = 0x0F;
constexpr Handle LayerZero = 0x10;
constexpr Handle StandardStyle = 0x11;
constexpr Handle Application = 0x12;
constexpr Handle LinetypeByBlock = 0x14;
constexpr Handle LinetypeByLayer = 0x15;
constexpr Handle LinetypeContinuous = 0x16;
constexpr Handle MultilineStyles = 0x17;
constexpr Handle StandardMultilineStyle = 0x18;
constexpr Handle PlotSettings = 0x19;
constexpr Handle Layouts = 0x1A;
constexpr Handle PaperSpace = 0x1B;
constexpr Handle PaperSpaceBlock = 0x1C;
constexpr Handle PaperSpaceEnd = 0x1D;
constexpr Handle PaperLayout = 0x1E;
constexpr Handle ModelSpace = 0x1F;
constexpr Handle ModelSpaceBlock = 0x20;
constexpr Handle ModelSpaceEnd = 0x21;
constexpr Handle ModelLayout = 0x22;
constexpr Handle StandardDimensionStyle = 0x27;
constexpr Handle ActiveViewport = 0x29;
constexpr Handle LinetypeHidden = 0x30;
constexpr Handle LinetypeCenter = 0x31;
/// The layers of the drawing, then its entities, follow from here without a gap.
constexpr Handle FirstLayer = 0x32;
} // namespace handles

} // namespace dwg
