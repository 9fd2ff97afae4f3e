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
constexpr Handle none = 0;
constexpr Handle blockControl = 0x01;
constexpr Handle layerControl = 0x02;
constexpr Handle styleControl = 0x03;
constexpr Handle linetypeControl = 0x05;
constexpr Handle viewControl = 0x06;
constexpr Handle ucsControl = 0x07;
constexpr Handle viewportControl = 0x08;
constexpr Handle applicationControl = 0x09;
constexpr Handle dimensionStyleControl = 0x0A;
constexpr Handle viewportHeaderControl = 0x0B;
constexpr Handle namedObjects = 0x0C;
constexpr Handle groups = 0x0D;
constexpr Handle plotStyles = 0x0E;
constexpr Handle normalPlotStyle = 0x0F;
constexpr Handle layerZero = 0x10;
constexpr Handle standardStyle = 0x11;
constexpr Handle application = 0x12;
constexpr Handle linetypeByBlock = 0x14;
constexpr Handle linetypeByLayer = 0x15;
constexpr Handle linetypeContinuous = 0x16;
constexpr Handle multilineStyles = 0x17;
constexpr Handle standardMultilineStyle = 0x18;
constexpr Handle plotSettings = 0x19;
constexpr Handle layouts = 0x1A;
constexpr Handle paperSpace = 0x1B;
constexpr Handle paperSpaceBlock = 0x1C;
constexpr Handle paperSpaceEnd = 0x1D;
constexpr Handle paperLayout = 0x1E;
constexpr Handle modelSpace = 0x1F;
constexpr Handle modelSpaceBlock = 0x20;
constexpr Handle modelSpaceEnd = 0x21;
constexpr Handle modelLayout = 0x22;
constexpr Handle standardDimensionStyle = 0x27;
constexpr Handle activeViewport = 0x29;
constexpr Handle linetypeHidden = 0x30;
constexpr Handle linetypeCenter = 0x31;
/// The layers of the drawing, then its entities, follow from here without a gap.
constexpr Handle firstLayer = 0x32;
} // namespace handles

} // namespace dwg
