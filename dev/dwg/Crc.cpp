#include "dev/dwg/Crc.h"

#include <array>

namespace dwg
{

namespace
{

std::array<std::uint16_t, 256> makeTable()
{
    std::array<std::uint16_t, 256> table{};
    for (unsigned index = 0; index < table.size(); ++index) {
        unsigned value = index;
        for (int bit = 0; bit < 8; ++bit)
            value = (value & 1U) != 0 ? (value >> 1U) ^ 0xA001U : value >> 1U;
        table[index] = static_cast<std::uint16_t>(value);
    }
    return table;
}

} // namespace

std::uint16_t crc(std::string_view bytes, std::uint16_t seed)
{
    static const std::array<std::uint16_t, 256> table = makeTable();
    unsigned crc = seed;
    for (const char byte : bytes)
        crc = (crc >> 8U) ^ table[(crc ^ static_cast<unsigned char>(byte)) & 0xFFU];
    return static_cast<std::uint16_t>(crc);
}

} // namespace dwg
