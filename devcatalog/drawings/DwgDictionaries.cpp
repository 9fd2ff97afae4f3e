#include "devcatalog/drawings/DwgDictionaries.h"

#include <string_view>
#include <vector>

namespace devcatalog
{

namespace
{

struct Item {
    std::string_view name;
    DwgHandle handle;
};

/// @param owner the dictionary that lists this one, or none.
/// @param items in the order of their names.
DwgObject dictionary(DwgObjectType type, DwgHandle handle, DwgHandle owner, const std::vector<Item>& items)
{
    DwgObject object(type, handle);
    BitWriter& data = object.data();
    const bool owned = owner != handles::none;
    data.bitLong(owned ? 1 : 0); // reactors
    data.bitLong(static_cast<std::uint32_t>(items.size()));
    data.bitShort(1); // cloning: keep the existing item
    data.rawChar(0);  // items are not hard-owned
    object.refer(softPointer(owner));
    if (owned) {
        object.refer(softPointer(owner));
    }
    object.refer(hardOwner(handles::none));
    for (const Item& item : items) {
        data.text(item.name);
        object.refer(softOwner(item.handle));
    }
    return object;
}

DwgObject plotStyleDictionary()
{
    DwgObject object = dictionary(DwgObjectType::DictionaryWithDefault, handles::plotStyles,
                                  handles::namedObjects, {{"Normal", handles::normalPlotStyle}});
    object.refer(hardPointer(handles::normalPlotStyle)); // the default
    return object;
}

DwgObject multilineStyle()
{
    constexpr double rightAngle = 1.5707963267948966;
    constexpr int byLayer = 256;
    constexpr int linetypeByLayer = 0x7FFF;
    DwgObject object = beginDictionaryItem(DwgObjectType::MultilineStyle, handles::standardMultilineStyle,
                                           handles::multilineStyles);
    BitWriter& data = object.data();
    data.text("STANDARD");
    data.text(""); // description
    data.bitShort(0);
    data.colour(byLayer);                      // fill
    data.bitDoubles({rightAngle, rightAngle}); // start and end
    data.rawChar(2);                           // lines
    for (const double offset : {0.5, -0.5}) {
        data.bitDouble(offset);
        data.colour(byLayer);
        data.bitShort(linetypeByLayer);
    }
    return object;
}

} // namespace

DwgObject beginDictionaryItem(DwgObjectType type, DwgHandle handle, DwgHandle owner)
{
    DwgObject object(type, handle);
    object.data().bitLong(1); // reactors
    object.refer(softPointer(owner));
    object.refer(softPointer(owner));
    object.refer(hardOwner(handles::none));
    return object;
}

void addDictionaries(DwgRecords& records)
{
    using Type = DwgObjectType;
    addRecord(records, dictionary(Type::Dictionary, handles::namedObjects, handles::none,
                                  {{"ACAD_GROUP", handles::groups},
                                   {"ACAD_LAYOUT", handles::layouts},
                                   {"ACAD_MLINESTYLE", handles::multilineStyles},
                                   {"ACAD_PLOTSETTINGS", handles::plotSettings},
                                   {"ACAD_PLOTSTYLENAME", handles::plotStyles}}));
    addRecord(records, dictionary(Type::Dictionary, handles::groups, handles::namedObjects, {}));
    addRecord(records, dictionary(Type::Dictionary, handles::multilineStyles, handles::namedObjects,
                                  {{"STANDARD", handles::standardMultilineStyle}}));
    addRecord(records, dictionary(Type::Dictionary, handles::plotSettings, handles::namedObjects, {}));
    addRecord(records, dictionary(Type::Dictionary, handles::layouts, handles::namedObjects,
                                  {{"Layout1", handles::paperLayout}, {"Model", handles::modelLayout}}));
    addRecord(records, plotStyleDictionary());
    addRecord(records, beginDictionaryItem(Type::Placeholder, handles::normalPlotStyle, handles::plotStyles));
    addRecord(records, multilineStyle());
}

} // namespace devcatalog
