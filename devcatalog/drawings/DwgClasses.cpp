#include "devcatalog/drawings/DwgClasses.h"

#include "devcatalog/drawings/BitWriter.h"
#include "devcatalog/drawings/DwgObject.h"

#include <string_view>

namespace devcatalog
{

namespace
{

void writeClass(BitWriter& data, DwgObjectType type, std::string_view className, std::string_view dxfName)
{
    constexpr int isObject = 0x1F3; // not an entity
    data.bitShort(static_cast<int>(type));
    data.bitShort(0); // nothing is allowed with its proxies
    data.text("Drawing classes");
    data.text(className);
    data.text(dxfName);
    data.bit(false); // was not a proxy
    data.bitShort(isObject);
}

} // namespace

std::string makeDwgClasses()
{
    BitWriter data;
    writeClass(data, DwgObjectType::DictionaryWithDefault, "AcDbDictionaryWithDefault",
               "ACDBDICTIONARYWDFLT");
    writeClass(data, DwgObjectType::Placeholder, "AcDbPlaceHolder", "ACDBPLACEHOLDER");
    writeClass(data, DwgObjectType::Layout, "AcDbLayout", "LAYOUT");
    return data.bytes();
}

} // namespace devcatalog
