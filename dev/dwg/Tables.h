#pragma once

#include "dev/dwg/Document.h"
#include "dev/dwg/Object.h"

#include <string_view>

namespace dwg
{

/// Writes the tables of a drawing: the control object of each, and the entries (layers, linetypes, text
/// style, application, viewport, dimension style) of all but the block table, whose entries are the drawing's
/// spaces.
void addTables(Records& records, const Document& document);

/// Begins the entry of a table.
/// @param control the table's control object.
/// @param name in the file's code page.
Object beginTableEntry(ObjectType type, Handle handle, Handle control, std::string_view name);

} // namespace dwg
