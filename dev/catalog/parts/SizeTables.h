#pragma once

#include <string_view>
#include <vector>

namespace devcatalog
{

/// A dimension's name, which the family's geometry looks it up by, and its unit.
struct Dimension {
    std::string_view name;
    std::string_view unit;
};

/// One size of a family, as a row of its table.
struct Size {
    std::string_view designation; ///< "{size}" in the texts of an range.
    std::string_view values;      ///< Blank-separated, one for each of the table's dimensions.
    std::string_view variants; ///< Blank-separated values of the table's variant, one for each configuration.
};

/// The sizes a family is made in.
struct SizeTable {
    std::string_view name;   ///< Key of the table.
    std::string_view family; ///< Key of the family whose geometry reads the dimensions.
    std::vector<Dimension> dimensions;
    Dimension variant;              ///< The dimension that the configurations of a part differ in.
    std::string_view configuration; ///< A configuration's name, made of "{size}" and "{variant}".
    std::vector<Size> sizes;
};

/// @return the tables of all families, lengths in millimetres.
const std::vector<SizeTable>& sizeTables();

} // namespace devcatalog
