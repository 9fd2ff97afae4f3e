#include "dev/catalog/RandomText.h"

#include <openssl/rand.h>

#include <stdexcept>
#include <string_view>
#include <vector>

namespace devcatalog
{

std::string randomHex(std::size_t length)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::vector<unsigned char> bytes(length / 2);
    if (RAND_bytes(bytes.data(), static_cast<int>(bytes.size())) != 1)
        throw std::runtime_error("No random numbers are to be had.");
    std::string text;
    for (const unsigned char byte : bytes) {
        text += digits[byte >> 4U];
        text += digits[byte & 15U];
    }
    return text;
}

} // namespace devcatalog
