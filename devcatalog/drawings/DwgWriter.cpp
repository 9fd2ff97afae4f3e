#include "devcatalog/drawings/DwgWriter.h"

#include "devcatalog/drawings/DwgClasses.h"
#include "devcatalog/drawings/DwgDictionaries.h"
#include "devcatalog/drawings/DwgDocument.h"
#include "devcatalog/drawings/DwgEntities.h"
#include "devcatalog/drawings/DwgFile.h"
#include "devcatalog/drawings/DwgHeaderVariables.h"
#include "devcatalog/drawings/DwgSpaces.h"
#include "devcatalog/drawings/DwgTables.h"

namespace devcatalog
{

namespace
{

std::string joined(const DwgRecords& records)
{
    std::string bytes;
    for (const auto& [handle, record] : records) {
        bytes += record;
    }
    return bytes;
}

} // namespace

std::string writeDwg(const Drawing& drawing)
{
    const DwgDocument document = makeDwgDocument(drawing);
    DwgFileParts parts;
    addTables(parts.records, document);
    addDictionaries(parts.records);
    addSpaces(parts.records, document);
    addEntities(parts.records, document);
    parts.headerVariables = makeHeaderVariables(document, joined(parts.records));
    parts.classes = makeDwgClasses();
    parts.firstUnusedHandle = document.firstUnusedHandle();
    return layOutDwgFile(parts);
}

} // namespace devcatalog
