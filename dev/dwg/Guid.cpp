#include "dev/dwg/Guid.h"

#include <cstddef>
#include <cstdint>

namespace dwg
{

namespace
{

/// The FNV-1a hash: no secrets here, only a number that differs when the content does.
std::uint64_t hash(std::string_view content, std::uint64_t start)
{
    constexpr std::uint64_t prime = 0x00000100000001B3;
    std::uint64_t value = start;
    for (const char byte : content)
        value = (value ^ static_cast<unsigned char>(byte)) * prime;
    return value;
}

std::string hexadecimal(std::uint64_t value)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    for (int shift = 60; shift >= 0; shift -= 4)
        text.push_back(digits[(value >> static_cast<unsigned>(shift)) & 0xFU]);
    return text;
}

} // namespace

std::string makeDwgGuid(std::string_view content)
{
    constexpr std::uint64_t firstStart = 0xCBF29CE484222325;
    constexpr std::uint64_t secondStart = 0x84222325CBF29CE4;
    std::string guid = hexadecimal(hash(content, firstStart)) + hexadecimal(hash(content, secondStart));
    guid[12] = '8'; // the version that leaves all other digits to the maker
    guid[16] = 'A'; // the usual variant
    for (const std::size_t position : {20, 16, 12, 8})
        guid.insert(position, 1, '-');
    return '{' + guid + '}';
}

} // namespace dwg
