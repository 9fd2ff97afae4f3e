#pragma once

#include "dev/dwg/Object.h"

namespace dwg
{

/// Writes the dictionary of named objects, the dictionaries in it, and what those name: the plot style
/// "Normal" and the multiline style "STANDARD". The layouts are written with their spaces.
void addDictionaries(Records& records);

/// Begins an object that a dictionary owns. Programs that read the file tell the dictionary when the object
/// changes.
Object beginDictionaryItem(ObjectType type, Handle handle, Handle dictionary);

} // namespace dwg
