#pragma once

#include "dev/catalog/parts/Part.h"

#include <string_view>
#include <vector>

namespace devcatalog
{

/// A supplier's range of parts: one part for each size of the table from first to last.
struct PartRange {
    std::string_view table; ///< Name of the size table.
    std::string_view supplier;
    std::string_view name; ///< "{size}" stands for the size's designation, here and in the description.
    std::string_view description;      ///< May be empty.
    std::string_view first;            ///< Designation of the first size; empty for the table's first.
    std::string_view last;             ///< Designation of the last size; empty for the table's last.
    std::vector<Parameter> properties; ///< Further parameters of each configuration.
    std::vector<std::string_view> unsupportedViews; ///< Wire names.
};

/// @return all ranges, in catalog order. The suppliers are invented.
const std::vector<PartRange>& partRanges();

} // namespace devcatalog
