#include "dev/dwg/Dictionaries.h"

#include <string_view>
#include <vector>

namespace dwg
{

namespace
{

struct Item {
    std::string_view name;
    Handle handle;
};

/// @param owner the dictionary that lists this one, or none.
/// @param items in the order of their names.
Object dictionary(ObjectType type, Handle handle, Handle owner, const std::vector<Item>& items)
{
    Object object(type, handle);
    BitWriter& data = object.data();
    const bool owned = owner != handles::none;
    data.bitLong(owned ? 1 : 0); // reactors
    data.bitLong(static_cast<std::uint32_t>(items.size()));
    data.bitShort(1); // cloning: keep the existing item
    data.rawChar(0);  // items are not hard-owned
    object.refer(softPointer(owner));
    if (owned)
        object.refer(softPointer(owner));
    object.refer(hardOwner(handles::none));
    for (const Item& item : items) {
        data.text(item.name);
        object.refer(softOwner(item.handle));
    }
    return object;
}

Object plotStyleDictionary()
{
    Object object = dictionary(ObjectType::DictionaryWithDefault, handles::plotStyles, handles::namedObjects,
                               {{"Normal", handles::normalPlotStyle}});
    object.refer(hardPointer(handles::normalPlotStyle)); // the default
    return object;
}

Object multilineStyle()
{
    constexpr double rightAngle = 1.5707963267948966;
    constexpr int byLayer = 256;
    constexpr int linetypeByLayer = 0x7FFF;
    Object object = beginDictionaryItem(ObjectType::MultilineStyle, handles::standardMultilineStyle,
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

Object beginDictionaryItem(ObjectType type, Handle handle, Handle owner)
{
    Object object(type, handle);
    object.data().bitLong(1); // reactors
    object.refer(softPointer(owner));
    object.refer(softPointer(owner));
    object.refer(hardOwner(handles::none));
    return object;
}

void addDictionaries(Records& records)
{
    using Type = ObjectType;
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

} // namespace dwg
