#include "dev/dwg/ObjectMap.h"

#include "dev/dwg/BitWriter.h"
#include "dev/dwg/Crc.h"

#include <cstddef>

namespace dwg
{

namespace
{

/// Sizes and check sums of the map are big-endian, unlike all else.
void writeBigEndian(BitWriter& data, std::size_t value)
{
    data.rawChar(static_cast<unsigned>(value >> 8U));
    data.rawChar(static_cast<unsigned>(value));
}

std::string block(const std::string& pairs)
{
    constexpr std::size_t sizeField = 2;
    BitWriter data;
    writeBigEndian(data, sizeField + pairs.size());
    data.rawBytes(pairs);
    writeBigEndian(data, crc(data.bytes()));
    return data.bytes();
}

/// An entry as its differences from the entry before.
std::string pair(MapEntry before, MapEntry entry)
{
    BitWriter data;
    data.modularChar(entry.handle - before.handle);
    data.signedModularChar(static_cast<std::int64_t>(entry.address) - before.address);
    return data.bytes();
}

} // namespace

std::string makeDwgObjectMap(const std::vector<MapEntry>& entries)
{
    constexpr std::size_t largestBlock = 2030;
    std::string map;
    std::string pairs;
    MapEntry before;
    for (const MapEntry& entry : entries) {
        std::string next = pair(before, entry);
        if (pairs.size() + next.size() > largestBlock) {
            map += block(pairs);
            pairs.clear();
            next = pair({}, entry); // the differences begin anew in each block
        }
        pairs += next;
        before = entry;
    }
    map += block(pairs);
    return map + block(""); // marks the end
}

} // namespace dwg
