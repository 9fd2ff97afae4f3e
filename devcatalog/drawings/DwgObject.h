#pragma once

#include "devcatalog/drawings/BitWriter.h"
#include "devcatalog/drawings/DwgHandle.h"

#include <map>
#include <string>

namespace devcatalog
{

/// The kinds of object that we write, by their number in the file.
enum class DwgObjectType {
    Block = 4,
    EndBlock = 5,
    Circle = 18,
    Line = 19,
    Dictionary = 42,
    BlockControl = 48,
    BlockHeader = 49,
    LayerControl = 50,
    Layer = 51,
    StyleControl = 52,
    Style = 53,
    LinetypeControl = 56,
    Linetype = 57,
    ViewControl = 60,
    UcsControl = 62,
    ViewportControl = 64,
    Viewport = 65,
    ApplicationControl = 66,
    Application = 67,
    DimensionStyleControl = 68,
    DimensionStyle = 69,
    ViewportHeaderControl = 70,
    MultilineStyle = 73,
    LwPolyline = 77,
    // The class section of the file gives these three their numbers.
    DictionaryWithDefault = 500,
    Placeholder = 501,
    Layout = 502
};

/// The finished records of a file by handle; they are laid out in this order.
using DwgRecords = std::map<DwgHandle, std::string>;

/// One object of the file while it is being written: its data, then its references to other objects.
class DwgObject
{
public:
    DwgObject(DwgObjectType type, DwgHandle handle);

    /// The object's data, after type, size and handle.
    BitWriter& data() { return m_data; }
    void refer(DwgReference reference) { m_references.handle(reference); }

    DwgHandle handle() const { return m_handle; }
    /// The whole record: size, data, references, check sum.
    std::string record() const;

private:
    DwgObjectType m_type;
    DwgHandle m_handle;
    BitWriter m_data;
    BitWriter m_references;
};

/// Files an object's record under its handle.
inline void addRecord(DwgRecords& records, const DwgObject& object)
{
    records.emplace(object.handle(), object.record());
}

} // namespace devcatalog
