#include "dev/dwg/Classes.h"

#include "dev/dwg/BitWriter.h"
#include "dev/dwg/Object.h"

#include <string_view>

namespace dwg
{

namespace
{

void writeClass(BitWriter& data, ObjectType type, std::string_view className, std::string_view dxfName)
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
    writeClass(data, ObjectType::DictionaryWithDefault, "AcDbDictionaryWithDefault", "ACDBDICTIONARYWDFLT");
    writeClass(data, ObjectType::Placeholder, "AcDbPlaceHolder", "ACDBPLACEHOLDER");
    writeClass(data, ObjectType::Layout, "AcDbLayout", "LAYOUT");
    return data.bytes();
}

} // namespace dwg
