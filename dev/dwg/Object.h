#pragma once

#include "dev/dwg/BitWriter.h"
#include "dev/dwg/Handle.h"

#include <map>
#include <string>

namespace dwg
{

/// The kinds of object that we write, by their number in the file.
enum class ObjectType {
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
using Records = std::map<Handle, std::string>;

/// One object of the file while it is being written: its data, then its references to other objects.
class Object
{
public:
    Object(ObjectType type, Handle handle);

    /// The object's data, after type, size and handle.
    BitWriter& data() { return m_data; }
    void refer(Reference reference) { m_references.handle(reference); }

    Handle handle() const { return m_handle; }
    /// The whole record: size, data, references, check sum.
    std::string record() const;

private:
    ObjectType m_type;
    Handle m_handle;
    BitWriter m_data;
    BitWriter m_references;
};

/// Files an object's record under its handle.
inline void addRecord(Records& records, const Object& object)
{
    records.emplace(object.handle(), object.record());
}

} // namespace dwg
