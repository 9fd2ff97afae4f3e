#pragma once

#include "dev/dwg/Drawing.h"
#include "dev/dwg/Handle.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace dwg
{

/// Writes the number codes of a DWG file: a stream of bits, the first bit of a byte being its highest.
///
/// The codes keep the format's usual names. "Raw" ones have a fixed size, "bit" ones begin with two bits that
/// say which of several lengths follows, "modular" ones use a bit of each byte or word to say that more
/// follow. Nothing is aligned; a raw byte may span two bytes of the stream. Numbers are little-endian,
/// handles big-endian.
class BitWriter
{
public:
    /// B.
    void bit(bool value);
    void bits(std::initializer_list<bool> values);
    /// BB: the two low bits of value.
    void bitPair(unsigned value);

    /// RC, RS, RL, RD: 1, 2, 4 bytes, and an IEEE double. Negative zero is written as zero.
    void rawChar(unsigned value);
    void rawShort(unsigned value);
    void rawLong(std::uint32_t value);
    void rawDouble(double value);
    void rawShorts(std::initializer_list<unsigned> values);
    void rawLongs(std::initializer_list<std::uint32_t> values);
    /// 2RD.
    void rawPoint(Point2 value);
    void rawBytes(std::string_view bytes);

    /// BS: a 16 bit number, -32768 to 65535.
    void bitShort(int value);
    void bitShorts(std::initializer_list<int> values);
    /// BL.
    void bitLong(std::uint32_t value);
    /// BD; three of them are a point in space (3BD).
    void bitDouble(double value);
    void bitDoubles(std::initializer_list<double> values);
    /// DD: a double of which a default is known to the reader.
    void defaultDouble(double value, double defaultValue);

    /// BT: no thickness. BE: the extrusion of everything flat, (0, 0, 1).
    void noThickness() { bit(true); }
    void flatExtrusion() { bit(true); }
    /// CMC: a number of the colour index (ACI); 0 by block, 256 by layer.
    void colour(int index) { bitShort(index); }
    /// T: text in the file's code page, at most 65535 bytes.
    void text(std::string_view encoded);
    /// H.
    void handle(Reference reference);
    /// A handle as the second file header lists it: byte count, index in the list, bytes.
    void countedHandle(unsigned index, Handle handle);

    /// MC, unsigned and signed; MS.
    void modularChar(std::uint32_t value);
    void signedModularChar(std::int64_t value);
    void modularShort(std::uint32_t value);

    /// Appends another stream bit by bit.
    void append(const BitWriter& other);

    std::size_t bitCount() const { return m_bitCount; }
    /// The stream so far; unused bits of the last byte are zero.
    const std::string& bytes() const { return m_bytes; }

private:
    void handleBytes(Handle handle, unsigned byteCount);

    std::string m_bytes;
    std::size_t m_bitCount = 0;
};

} // namespace dwg
