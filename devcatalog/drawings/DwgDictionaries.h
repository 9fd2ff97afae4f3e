#pragma once

#include "devcatalog/drawings/DwgObject.h"

namespace devcatalog
{

/// Writes the dictionary of named objects, the dictionaries in it, and what those name: the plot style
/// "Normal" and the multiline style "STANDARD". The layouts are written with their spaces.
void addDictionaries(DwgRecords& records);

/// Begins an object that a dictionary owns and is told of when it changes.
DwgObject beginDictionaryItem(DwgObjectType type, DwgHandle handle, DwgHandle dictionary);

} // namespace devcatalog
