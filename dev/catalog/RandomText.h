#pragma once

#include <cstddef>
#include <string>

namespace devcatalog
{

/// A text that nobody can guess.
/// @param length an even number of hexadecimal digits.
/// @throws std::runtime_error when the machine has no random numbers.
std::string randomHex(std::size_t length);

} // namespace devcatalog
