#pragma once

#include <cstdint>
#include <string_view>

namespace dwg
{

/// Start value of every check sum but the file header's, which starts at 0.
constexpr std::uint16_t CrcSeed = 0xC0C1;

/// The 16 bit check sum of a DWG file's sections and objects (reflected polynomial 0xA001).
std::uint16_t crc(std::string_view bytes, std::uint16_t seed = CrcSeed);

} // namespace dwg
