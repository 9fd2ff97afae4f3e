#include "dev/dwg/Text.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace dwg
{

namespace
{

constexpr char32_t NoCharacter = 0xFFFFFFFF;

/// Windows-1252 from 0x80 to 0x9F (0 where it has no character); elsewhere it equals Latin-1.
constexpr std::array<char32_t, 32> UpperControls = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

/// Number of bytes that a UTF-8 sequence has by its first byte; 0 when none begins so.
std::size_t sequenceLength(unsigned char first)
{
    if (first < 0x80)
        return 1;
    if (first >= 0xC2 && first < 0xE0)
        return 2;
    if (first >= 0xE0 && first < 0xF0)
        return 3;
    return first >= 0xF0 && first < 0xF5 ? 4 : 0;
}

/// Takes the next character off the front of the text; NoCharacter for a byte that is not UTF-8.
char32_t takeCharacter(std::string_view& utf8)
{
    const auto first = static_cast<unsigned char>(utf8.front());
    const std::size_t length = sequenceLength(first);
    char32_t character = length <= 1 ? first : first & (0x7FU >> length);
    for (std::size_t index = 1; index < length; ++index) {
        if (index >= utf8.size() || (static_cast<unsigned char>(utf8[index]) & 0xC0U) != 0x80U) {
            utf8.remove_prefix(1);
            return NoCharacter;
        }
        character = (character << 6U) | (static_cast<unsigned char>(utf8[index]) & 0x3FU);
    }
    utf8.remove_prefix(std::max<std::size_t>(length, 1));
    return length == 0 ? NoCharacter : character;
}

char encode(char32_t character, char replacement)
{
    const bool printableAscii = character >= 0x20 && character < 0x7F;
    const bool upperLatin1 = character >= 0xA0 && character <= 0xFF;
    if (printableAscii || upperLatin1)
        return static_cast<char>(character);
    const auto found = std::find(UpperControls.begin(), UpperControls.end(), character);
    if (character == 0 || found == UpperControls.end())
        return replacement;
    return static_cast<char>(0x80 + (found - UpperControls.begin()));
}

} // namespace

std::string toWindows1252(std::string_view utf8, char replacement)
{
    std::string encoded;
    while (!utf8.empty())
        encoded.push_back(encode(takeCharacter(utf8), replacement));
    return encoded;
}

} // namespace dwg
