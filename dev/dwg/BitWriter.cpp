#include "dev/dwg/BitWriter.h"

#include <cstring>

namespace dwg
{

namespace
{

unsigned byteCountOf(Handle handle)
{
    unsigned count = 0;
    for (; handle != 0; handle >>= 8U)
        ++count;
    return count;
}

} // namespace

void BitWriter::bit(bool value)
{
    const unsigned position = m_bitCount % 8;
    if (position == 0)
        m_bytes.push_back('\0');
    if (value) {
        const unsigned last = static_cast<unsigned char>(m_bytes.back());
        m_bytes.back() = static_cast<char>(last | (0x80U >> position));
    }
    ++m_bitCount;
}

void BitWriter::bits(std::initializer_list<bool> values)
{
    for (const bool value : values)
        bit(value);
}

void BitWriter::bitPair(unsigned value)
{
    bit((value & 2U) != 0);
    bit((value & 1U) != 0);
}

void BitWriter::rawChar(unsigned value)
{
    if (m_bitCount % 8 == 0) {
        m_bytes.push_back(static_cast<char>(value & 0xFFU));
        m_bitCount += 8;
        return;
    }
    for (unsigned mask = 0x80; mask != 0; mask >>= 1U)
        bit((value & mask) != 0);
}

void BitWriter::rawShort(unsigned value)
{
    rawChar(value);
    rawChar(value >> 8U);
}

void BitWriter::rawLong(std::uint32_t value)
{
    rawShort(value);
    rawShort(value >> 16U);
}

void BitWriter::rawDouble(double value)
{
    // Adding zero turns -0.0 into 0.0: equal numbers give equal bytes.
    const double normalised = value + 0.0;
    std::uint64_t pattern = 0;
    static_assert(sizeof pattern == sizeof normalised, "IEEE doubles have 64 bits");
    std::memcpy(&pattern, &normalised, sizeof pattern);
    rawLong(static_cast<std::uint32_t>(pattern));
    rawLong(static_cast<std::uint32_t>(pattern >> 32U));
}

void BitWriter::rawShorts(std::initializer_list<unsigned> values)
{
    for (const unsigned value : values)
        rawShort(value);
}

void BitWriter::rawLongs(std::initializer_list<std::uint32_t> values)
{
    for (const std::uint32_t value : values)
        rawLong(value);
}

void BitWriter::rawPoint(Point2 value)
{
    rawDouble(value.x);
    rawDouble(value.y);
}

void BitWriter::rawBytes(std::string_view bytes)
{
    for (const char byte : bytes)
        rawChar(static_cast<unsigned char>(byte));
}

void BitWriter::bitShort(int value)
{
    if (value == 0) {
        bitPair(2);
    } else if (value == 256) {
        bitPair(3);
    } else if (value > 0 && value < 256) {
        bitPair(1);
        rawChar(static_cast<unsigned>(value));
    } else {
        bitPair(0);
        rawShort(static_cast<unsigned>(value));
    }
}

void BitWriter::bitShorts(std::initializer_list<int> values)
{
    for (const int value : values)
        bitShort(value);
}

void BitWriter::bitLong(std::uint32_t value)
{
    if (value == 0) {
        bitPair(2);
    } else if (value < 256) {
        bitPair(1);
        rawChar(value);
    } else {
        bitPair(0);
        rawLong(value);
    }
}

void BitWriter::bitDouble(double value)
{
    if (value == 0.0) {
        bitPair(2);
    } else if (value == 1.0) {
        bitPair(1);
    } else {
        bitPair(0);
        rawDouble(value);
    }
}

void BitWriter::bitDoubles(std::initializer_list<double> values)
{
    for (const double value : values)
        bitDouble(value);
}

void BitWriter::defaultDouble(double value, double defaultValue)
{
    if (value == defaultValue) {
        bitPair(0);
    } else {
        bitPair(3);
        rawDouble(value);
    }
}

void BitWriter::text(std::string_view encoded)
{
    bitShort(static_cast<int>(encoded.size()));
    rawBytes(encoded);
}

void BitWriter::handle(Reference reference)
{
    const unsigned byteCount = byteCountOf(reference.handle);
    rawChar((static_cast<unsigned>(reference.kind) << 4U) | byteCount);
    handleBytes(reference.handle, byteCount);
}

void BitWriter::countedHandle(unsigned index, Handle handle)
{
    const unsigned byteCount = byteCountOf(handle);
    rawChar(byteCount);
    rawChar(index);
    handleBytes(handle, byteCount);
}

void BitWriter::handleBytes(Handle handle, unsigned byteCount)
{
    for (unsigned index = byteCount; index-- > 0;)
        rawChar(handle >> (8 * index));
}

void BitWriter::modularChar(std::uint32_t value)
{
    while (value > 0x7FU) {
        rawChar((value & 0x7FU) | 0x80U);
        value >>= 7U;
    }
    rawChar(value);
}

void BitWriter::signedModularChar(std::int64_t value)
{
    std::uint64_t magnitude =
        value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
    // The last byte gives one of its seven bits to the sign.
    while (magnitude > 0x3FU) {
        rawChar(static_cast<unsigned>(magnitude & 0x7FU) | 0x80U);
        magnitude >>= 7U;
    }
    rawChar(static_cast<unsigned>(magnitude) | (value < 0 ? 0x40U : 0U));
}

void BitWriter::modularShort(std::uint32_t value)
{
    while (value > 0x7FFFU) {
        rawShort((value & 0x7FFFU) | 0x8000U);
        value >>= 15U;
    }
    rawShort(value);
}

void BitWriter::append(const BitWriter& other)
{
    const std::size_t wholeBytes = other.m_bitCount / 8;
    rawBytes(std::string_view(other.m_bytes).substr(0, wholeBytes));
    for (std::size_t index = 0; index < other.m_bitCount % 8; ++index)
        bit((static_cast<unsigned char>(other.m_bytes.back()) & (0x80U >> index)) != 0);
}

} // namespace dwg
