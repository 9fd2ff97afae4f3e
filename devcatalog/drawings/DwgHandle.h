#pragma once

#include <cstdint>

namespace devcatalog
{

/// The number by which objects of a DWG file name each other; 0 names none.
using DwgHandle = std::uint32_t;

/// What a reference means for the life of the two objects.
enum class DwgReferenceKind { Self = 0, SoftOwner = 2, HardOwner = 3, SoftPointer = 4, HardPointer = 5 };

struct DwgReference {
    DwgReferenceKind kind = DwgReferenceKind::Self;
    DwgHandle handle = 0;
};

constexpr DwgReference selfReference(DwgHandle handle)
{
    return {DwgReferenceKind::Self, handle};
}
constexpr DwgReference softOwner(DwgHandle handle)
{
    return {DwgReferenceKind::SoftOwner, handle};
}
constexpr DwgReference hardOwner(DwgHandle handle)
{
    return {DwgReferenceKind::HardOwner, handle};
}
constexpr DwgReference softPointer(DwgHandle handle)
{
    return {DwgReferenceKind::SoftPointer, handle};
}
constexpr DwgReference hardPointer(DwgHandle handle)
{
    return {DwgReferenceKind::HardPointer, handle};
}

/// Handles of the objects that every drawing has. Any would do; these are the ones commonly seen.
namespace handles
{
constexpr DwgHandle none = 0;
constexpr DwgHandle blockControl = 0x01;
constexpr DwgHandle layerControl = 0x02;
constexpr DwgHandle styleControl = 0x03;
constexpr DwgHandle linetypeControl = 0x05;
constexpr DwgHandle viewControl = 0x06;
constexpr DwgHandle ucsControl = 0x07;
constexpr DwgHandle viewportControl = 0x08;
constexpr DwgHandle applicationControl = 0x09;
constexpr DwgHandle dimensionStyleControl = 0x0A;
constexpr DwgHandle viewportHeaderControl = 0x0B;
constexpr DwgHandle namedObjects = 0x0C;
constexpr DwgHandle groups = 0x0D;
constexpr DwgHandle plotStyles = 0x0E;
constexpr DwgHandle normalPlotStyle = 0x0F;
constexpr DwgHandle layerZero = 0x10;
constexpr DwgHandle standardStyle = 0x11;
constexpr DwgHandle application = 0x12;
constexpr DwgHandle linetypeByBlock = 0x14;
constexpr DwgHandle linetypeByLayer = 0x15;
constexpr DwgHandle linetypeContinuous = 0x16;
constexpr DwgHandle multilineStyles = 0x17;
constexpr DwgHandle standardMultilineStyle = 0x18;
constexpr DwgHandle plotSettings = 0x19;
constexpr DwgHandle layouts = 0x1A;
constexpr DwgHandle paperSpace = 0x1B;
constexpr DwgHandle paperSpaceBlock = 0x1C;
constexpr DwgHandle paperSpaceEnd = 0x1D;
constexpr DwgHandle paperLayout = 0x1E;
constexpr DwgHandle modelSpace = 0x1F;
constexpr DwgHandle modelSpaceBlock = 0x20;
constexpr DwgHandle modelSpaceEnd = 0x21;
constexpr DwgHandle modelLayout = 0x22;
constexpr DwgHandle standardDimensionStyle = 0x27;
constexpr DwgHandle activeViewport = 0x29;
constexpr DwgHandle linetypeHidden = 0x30;
constexpr DwgHandle linetypeCenter = 0x31;
/// The layers of the drawing, then its entities, follow from here without a gap.
constexpr DwgHandle firstLayer = 0x32;
} // namespace handles

} // namespace devcatalog
