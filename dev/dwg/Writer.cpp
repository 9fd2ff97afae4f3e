#include "dev/dwg/Writer.h"

#include "dev/dwg/Classes.h"
#include "dev/dwg/Dictionaries.h"
#include "dev/dwg/Document.h"
#include "dev/dwg/Entities.h"
#include "dev/dwg/File.h"
#include "dev/dwg/HeaderVariables.h"
#include "dev/dwg/Spaces.h"
#include "dev/dwg/Tables.h"

namespace dwg
{

namespace
{

std::string joined(const Records& records)
{
    std::string bytes;
    for (const auto& [handle, record] : records)
        bytes += record;
    return bytes;
}

} // namespace

std::string writeDwg(const Drawing& drawing)
{
    const Document document = makeDwgDocument(drawing);
    FileParts parts;
    addTables(parts.records, document);
    addDictionaries(parts.records);
    addSpaces(parts.records, document);
    addEntities(parts.records, document);
    parts.headerVariables = makeHeaderVariables(document, joined(parts.records));
    parts.classes = makeDwgClasses();
    parts.firstUnusedHandle = document.firstUnusedHandle();
    return layOutDwgFile(parts);
}

} // namespace dwg
