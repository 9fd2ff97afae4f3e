#pragma once

#include "dev/catalog/parts/Rows.h"

#include <array>
#include <string_view>

namespace devcatalog
{

/// A value that all configurations of a range share, for example { "Step angle", "1.8", "°" }.
struct Property {
    std::string_view name; ///< Empty for none.
    std::string_view value;
    std::string_view unit;
};
using Properties = std::array<Property, 2>;

/// The first and the last size of a range, by designation; an empty one is the table's own.
struct SizeSpan {
    std::string_view first;
    std::string_view last;
};

/// A supplier's range of parts: one part for each size of the table from first to last.
struct PartRange {
    std::string_view table; ///< Name of the size table.
    std::string_view supplier;
    std::string_view name; ///< "{size}" stands for the size's designation, here and in the description.
    SizeSpan sizes;
    Properties properties;                            ///< Further parameters of each configuration.
    std::array<std::string_view, 2> unsupportedViews; ///< Wire names; empty for none.
    std::string_view description;                     ///< May be empty.
};

/// @return all ranges, in catalog order. The suppliers are invented.
Rows<PartRange> partRanges();

} // namespace devcatalog
