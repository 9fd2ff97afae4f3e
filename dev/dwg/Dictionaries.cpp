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
    const bool owned = owner != handles::None;
    data.bitLong(owned ? 1 : 0); // reactors
    data.bitLong(static_cast<std::uint32_t>(items.size()));
    data.bitShort(1); // cloning: keep the existing item
    data.rawChar(0);  // items are not hard-owned
    object.refer(softPointer(owner));
    if (owned)
        object.refer(softPointer(owner));
    object.refer(hardOwner(handles::None));
    for (const Item& item : items) {
        data.text(item.name);
        object.refer(softOwner(item.handle));
    }
    return object;
}

Object plotStyleDictionary()
{
    Object object = dictionary(ObjectType::DictionaryWithDefault, handles::PlotStyles, handles::NamedObjects,
                               {{"Normal", handles::NormalPlotStyle}});
    object.refer(hardPointer(handles::NormalPlotStyle)); // the default
    return object;
}

Object multilineStyle()
{
    constexpr double rightAngle = 1.5707963267948966;
    constexpr int byLayer = 256;
    constexpr int linetypeByLayer = 0x7FFF;
    Object object = beginDictionaryItem(ObjectType::MultilineStyle, handles::StandardMultilineStyle,
                                        handles::MultilineStyles);
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
    object.refer(hardOwner(handles::None));
    return object;
}

void addDictionaries(Records& records)
{
    using Type = ObjectType;
    addRecord(records, dictionary(Type::Dictionary, handles::NamedObjects, handles::None,
                                  {{"ACAD_GROUP", handles::Groups},
                                   {"ACAD_LAYOUT", handles::Layouts},
                                   {"ACAD_MLINESTYLE", handles::MultilineStyles},
                                   {"ACAD_PLOTSETTINGS", handles::PlotSettings},
                                   {"ACAD_PLOTSTYLENAME", handles::PlotStyles}}));
    addRecord(records, dictionary(Type::Dictionary, handles::Groups, handles::NamedObjects, {}));
    addRecord(records, dictionary(Type::Dictionary, handles::MultilineStyles, handles::NamedObjects,
                                  {{"STANDARD", handles::StandardMultilineStyle}}));
    addRecord(records, dictionary(Type::Dictionary, handles::PlotSettings, handles::NamedObjects, {}));
    addRecord(records, dictionary(Type::Dictionary, handles::Layouts, handles::NamedObjects,
                                  {{"Layout1", handles::PaperLayout}, {"Model", handles::ModelLayout}}));
    addRecord(records, plotStyleDictionary());
    addRecord(records, beginDictionaryItem(Type::Placeholder, handles::NormalPlotStyle, handles::PlotStyles));
    addRecord(records, multilineStyle());
}

} // namespace dwg
