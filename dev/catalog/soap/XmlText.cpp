#include "dev/catalog/soap/XmlText.h"

#include <charconv>
#include <cstdint>
#include <optional>

namespace devcatalog
{

namespace
{

/// How many bytes the character has that begins with this one; 0 when none does.
std::size_t sequenceLength(unsigned char first)
{
    if (first < 0x80)
        return 1;
    if (first >= 0xc2 && first < 0xe0)
        return 2;
    if (first >= 0xe0 && first < 0xf0)
        return 3;
    return first >= 0xf0 && first < 0xf5 ? 4 : 0;
}

/// Takes the first character off the text, in its shortest form only.
std::optional<std::uint32_t> takeCharacter(std::string_view& text)
{
    const auto first = static_cast<unsigned char>(text.front());
    const std::size_t length = sequenceLength(first);
    if (length == 0 || length > text.size())
        return std::nullopt;
    std::uint32_t character = length == 1 ? first : first & (0xffU >> (length + 1));
    for (const char byte : text.substr(1, length - 1)) {
        const auto further = static_cast<unsigned char>(byte);
        if ((further & 0xc0U) != 0x80U)
            return std::nullopt;
        character = (character << 6U) | (further & 0x3fU);
    }
    constexpr std::uint32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    text.remove_prefix(length);
    return character < smallest[length] ? std::nullopt : std::optional(character);
}

bool isXmlCharacter(std::uint32_t character)
{
    const bool isSpace = character == 0x9 || character == 0xa || character == 0xd;
    const bool isSurrogate = character >= 0xd800 && character < 0xe000;
    return isSpace || (character >= 0x20 && character < 0x110000 && !isSurrogate && character != 0xfffe &&
                       character != 0xffff);
}

/// @param reference what stands between "&" and ";".
bool isXmlReference(std::string_view reference)
{
    if (reference.empty() || reference.front() != '#') {
        return reference == "amp" || reference == "lt" || reference == "gt" || reference == "quot" ||
               reference == "apos";
    }
    const bool isHexadecimal = reference.substr(0, 2) == "#x";
    const std::string_view digits = reference.substr(isHexadecimal ? 2 : 1);
    std::uint32_t character = 0;
    const char* const digitsEnd = digits.data() + digits.size();
    const auto [end, error] = std::from_chars(digits.data(), digitsEnd, character, isHexadecimal ? 16 : 10);
    return error == std::errc() && end == digitsEnd && isXmlCharacter(character);
}

} // namespace

bool isXmlText(std::string_view text)
{
    while (!text.empty()) {
        const std::optional<std::uint32_t> character = takeCharacter(text);
        if (!character || !isXmlCharacter(*character))
            return false;
        if (*character == '&') {
            const std::size_t end = text.find(';');
            if (end == std::string_view::npos || !isXmlReference(text.substr(0, end)))
                return false;
        }
    }
    return true;
}

std::string quote(std::string_view text)
{
    constexpr std::size_t longest = 100;
    std::string result = "'";
    while (!text.empty() && result.size() < longest) {
        const std::string_view rest = text;
        const std::optional<std::uint32_t> character = takeCharacter(text);
        if (!character)
            text = rest.substr(1);
        const bool isShown =
            character && *character >= 0x20 && *character != 0x7f && isXmlCharacter(*character);
        result += isShown ? std::string(rest.substr(0, rest.size() - text.size())) : "?";
    }
    return result + (text.empty() ? "'" : "...'");
}

} // namespace devcatalog
