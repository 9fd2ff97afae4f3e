#include "dev/dwg/Object.h"

#include "dev/dwg/Crc.h"

#include <cstddef>
#include <cstdint>

namespace dwg
{

Object::Object(ObjectType type, Handle handle) : m_type(type), m_handle(handle)
{
    m_data.handle(selfReference(handle));
    m_data.bitShort(0); // no extended data
}

std::string Object::record() const
{
    constexpr std::size_t sizeFieldBits = 32;
    BitWriter body;
    body.bitShort(static_cast<int>(m_type));
    // The size counts from the type up to the references, its own field included.
    body.rawLong(static_cast<std::uint32_t>(body.bitCount() + sizeFieldBits + m_data.bitCount()));
    body.append(m_data);
    body.append(m_references);

    BitWriter record;
    record.modularShort(static_cast<std::uint32_t>(body.bytes().size()));
    record.rawBytes(body.bytes());
    record.rawShort(crc(record.bytes()));
    return record.bytes();
}

} // namespace dwg
