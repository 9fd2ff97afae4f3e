#pragma once

#include "dev/catalog/parts/Rows.h"

#include <string_view>

namespace devcatalog
{

/// A dimension's name, which the family's geometry looks it up by, and its unit.
struct Dimension {
    std::string_view name;
    std::string_view unit;
};

/// One size of a family, as a row of its table.
struct Size {
    std::string_view designation; ///< "{size}" in the texts of a range.
    std::string_view values;      ///< Blank-separated, one for each of the table's dimensions.
    std::string_view variants; ///< Blank-separated values of the table's variant, one for each configuration.
};

/// The sizes a family is made in.
struct SizeTable {
    std::string_view name;          ///< Key of the table.
    std::string_view family;        ///< Key of the family whose geometry reads the dimensions.
    std::string_view configuration; ///< A configuration's name, made of "{size}" and "{variant}".
    Rows<Dimension> dimensions;
    Dimension variant; ///< The dimension that the configurations of a part differ in.
    Rows<Size> sizes;
};

/// @return the tables of all families, lengths in millimetres.
Rows<SizeTable> sizeTables();

} // namespace devcatalog
