#include "dev/dwg/Spaces.h"

#include "dev/dwg/Dictionaries.h"
#include "dev/dwg/Tables.h"

#include <string_view>

namespace dwg
{

namespace
{

/// Names, handles and settings by which the two spaces differ.
struct SpaceNames {
    Space space;
    std::string_view blockName;
    Handle header;
    Handle begin;
    Handle end;
    Handle layout;
    std::string_view layoutName;
    unsigned tabOrder;
    int plotFlags;
    int plotType;
    int scaleType;
};

constexpr SpaceNames ModelSpace = {Space::Model,
                                   "*Model_Space",
                                   handles::ModelSpace,
                                   handles::ModelSpaceBlock,
                                   handles::ModelSpaceEnd,
                                   handles::ModelLayout,
                                   "Model",
                                   0,
                                   1712,
                                   0,
                                   0};

constexpr SpaceNames PaperSpace = {Space::Paper,
                                   "*Paper_Space",
                                   handles::PaperSpace,
                                   handles::PaperSpaceBlock,
                                   handles::PaperSpaceEnd,
                                   handles::PaperLayout,
                                   "Layout1",
                                   1,
                                   688,
                                   5,
                                   16};

/// @param description shown for the block; in the file's code page.
/// @param first, last entity of the space, or none.
Object blockHeader(const SpaceNames& names, std::string_view description, Handle first, Handle last)
{
    Object object =
        beginTableEntry(ObjectType::BlockHeader, names.header, handles::BlockControl, names.blockName);
    BitWriter& data = object.data();
    // Not anonymous, no attributes, no external drawing, not overlaid, not loaded.
    data.bits({false, false, false, false, false});
    data.bitDoubles({0.0, 0.0, 0.0}); // base point
    data.text("");                    // path of an external drawing
    data.rawChar(0);                  // insertions
    data.text(description);
    data.bitLong(0); // size of a preview
    object.refer(hardOwner(names.begin));
    object.refer(softPointer(first));
    object.refer(softPointer(last));
    object.refer(hardOwner(names.end));
    object.refer(hardPointer(names.layout));
    return object;
}

void addBlock(Records& records, const SpaceNames& names)
{
    EntityPlace place;
    place.layer = handles::LayerZero;
    place.space = names.space;
    place.handle = names.begin;
    Object begin = beginEntity(ObjectType::Block, place);
    begin.data().text(names.blockName);
    addRecord(records, begin);
    place.handle = names.end;
    addRecord(records, beginEntity(ObjectType::EndBlock, place));
}

void writePlotSettings(BitWriter& data, const SpaceNames& names)
{
    data.text("");     // page setup
    data.text("None"); // printer
    data.bitShort(names.plotFlags);
    data.bitDoubles({0.0, 0.0, 0.0, 0.0}); // margins
    data.bitDoubles({0.0, 0.0});           // paper size
    data.text("");                         // paper name
    data.bitDoubles({0.0, 0.0});           // plot origin
    data.bitShort(1);                      // paper measured in millimetres
    data.bitShort(0);                      // not turned
    data.bitShort(names.plotType);
    data.bitDoubles({0.0, 0.0, 0.0, 0.0}); // plot window
    data.text("");                         // plot view
    data.bitDoubles({1.0, 1.0});           // scale: real units, drawing units
    data.text("");                         // plot style sheet
    data.bitShort(names.scaleType);
    data.bitDouble(1.0);         // scale factor
    data.bitDoubles({0.0, 0.0}); // origin of the paper's picture
}

Object layout(const SpaceNames& names, const SpaceBounds& bounds)
{
    Object object = beginDictionaryItem(ObjectType::Layout, names.layout, handles::Layouts);
    BitWriter& data = object.data();
    writePlotSettings(data, names);
    data.text(names.layoutName);
    data.bitLong(names.tabOrder);
    data.bitShort(1);                 // linetypes scaled to paper
    data.bitDoubles({0.0, 0.0, 0.0}); // coordinate system: origin
    data.rawPoint(bounds.limits.min);
    data.rawPoint(bounds.limits.max);
    data.bitDoubles({0.0, 0.0, 0.0}); // insertion base
    data.bitDoubles({1.0, 0.0, 0.0}); // coordinate system: x and y axis
    data.bitDoubles({0.0, 1.0, 0.0});
    data.bitDouble(0.0); // elevation
    data.bitShort(0);    // not orthographic
    writeExtents(data, bounds.extents);
    object.refer(softPointer(names.header));
    object.refer(softPointer(handles::None)); // viewport last active
    object.refer(hardPointer(handles::None)); // base and named coordinate system
    object.refer(hardPointer(handles::None));
    return object;
}

} // namespace

SpaceBounds boundsOf(Space space, const Document& document)
{
    constexpr Extents emptyLimits = {{0.0, 0.0}, {12.0, 9.0}};
    if (space == Space::Paper || !document.extents)
        return {std::nullopt, emptyLimits};
    return {document.extents, *document.extents};
}

void writeExtents(BitWriter& data, const std::optional<Extents>& extents)
{
    constexpr double beyond = 1.0e20;
    if (!extents) {
        data.bitDoubles({beyond, beyond, beyond, -beyond, -beyond, -beyond});
        return;
    }
    data.bitDoubles({extents->min.x, extents->min.y, 0.0});
    data.bitDoubles({extents->max.x, extents->max.y, 0.0});
}

void addSpaces(Records& records, const Document& document)
{
    const bool empty = document.entities.empty();
    addRecord(records, blockHeader(ModelSpace, document.title, empty ? handles::None : document.firstEntity,
                                   empty ? handles::None : document.lastEntity()));
    addRecord(records, blockHeader(PaperSpace, "", handles::None, handles::None));
    for (const SpaceNames& names : {ModelSpace, PaperSpace}) {
        addBlock(records, names);
        addRecord(records, layout(names, boundsOf(names.space, document)));
    }
}

} // namespace dwg
