#pragma once

#include "devcatalog/drawings/DwgDocument.h"
#include "devcatalog/drawings/DwgObject.h"

#include <string_view>

namespace devcatalog
{

/// Writes the tables of a drawing: the control object of each, and the entries (layers, linetypes, text
/// style, application, viewport, dimension style) of all but the block table, whose entries are the drawing's
/// spaces.
void addTables(DwgRecords& records, const DwgDocument& document);

/// Begins the entry of a table.
/// @param control the table's control object.
/// @param name in the file's code page.
DwgObject beginTableEntry(DwgObjectType type, DwgHandle handle, DwgHandle control, std::string_view name);

} // namespace devcatalog
