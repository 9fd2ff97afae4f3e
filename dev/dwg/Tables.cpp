#include "dev/dwg/Tables.h"

#include "dev/dwg/DimensionVariables.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <string>
#include <string_view>
#include <vector>

namespace dwg
{

namespace
{

/// The object that lists a table's entries. "Fixed" entries are listed without being counted.
Object controlObject(ObjectType type, Handle handle, const std::vector<Handle>& entries,
                     const std::vector<Handle>& fixedEntries = {})
{
    Object object(type, handle);
    object.data().bitLong(0); // reactors
    object.data().bitLong(static_cast<std::uint32_t>(entries.size()));
    object.refer(softPointer(handles::None));
    object.refer(hardOwner(handles::None));
    for (const Handle entry : entries)
        object.refer(softOwner(entry));
    for (const Handle entry : fixedEntries)
        object.refer(hardOwner(entry));
    return object;
}

void addControlObjects(Records& records, const Document& document)
{
    using Type = ObjectType;
    std::vector<Handle> layers = {handles::LayerZero};
    for (const Layer& layer : document.layers)
        layers.push_back(layer.handle);
    addRecord(records, controlObject(Type::BlockControl, handles::BlockControl, {},
                                     {handles::ModelSpace, handles::PaperSpace}));
    addRecord(records, controlObject(Type::LayerControl, handles::LayerControl, layers));
    addRecord(records, controlObject(Type::StyleControl, handles::StyleControl, {handles::StandardStyle}));
    addRecord(records,
              controlObject(Type::LinetypeControl, handles::LinetypeControl,
                            {handles::LinetypeContinuous, handles::LinetypeHidden, handles::LinetypeCenter},
                            {handles::LinetypeByBlock, handles::LinetypeByLayer}));
    addRecord(records, controlObject(Type::ViewControl, handles::ViewControl, {}));
    addRecord(records, controlObject(Type::UcsControl, handles::UcsControl, {}));
    addRecord(records,
              controlObject(Type::ViewportControl, handles::ViewportControl, {handles::ActiveViewport}));
    addRecord(records,
              controlObject(Type::ApplicationControl, handles::ApplicationControl, {handles::Application}));
    Object dimensionStyles = controlObject(Type::DimensionStyleControl, handles::DimensionStyleControl,
                                           {handles::StandardDimensionStyle});
    dimensionStyles.data().rawChar(0); // further references, which this control object alone may have
    addRecord(records, dimensionStyles);
    addRecord(records, controlObject(Type::ViewportHeaderControl, handles::ViewportHeaderControl, {}));
}

Object layerEntry(const Layer& layer)
{
    constexpr int plots = 0x10;
    Object object = beginTableEntry(ObjectType::Layer, layer.handle, handles::LayerControl, layer.name);
    object.data().bitShort(plots | (layer.lineweightIndex << 5));
    object.data().colour(layer.colour);
    object.refer(hardPointer(handles::NormalPlotStyle));
    object.refer(hardPointer(layer.linetype));
    return object;
}

void addLayers(Records& records, const Document& document)
{
    constexpr int white = 7;
    constexpr int defaultLineweight = 31;
    addRecord(records,
              layerEntry({handles::LayerZero, "0", white, defaultLineweight, handles::LinetypeContinuous}));
    for (const Layer& layer : document.layers)
        addRecord(records, layerEntry(layer));
}

struct Linetype {
    Handle handle;
    std::string_view name;
    std::string_view description;
    /// Lengths in drawing units at a linetype scale of one; a negative one is a gap.
    std::vector<double> dashes;
};

Object linetypeEntry(const Linetype& linetype)
{
    Object object =
        beginTableEntry(ObjectType::Linetype, linetype.handle, handles::LinetypeControl, linetype.name);
    BitWriter& data = object.data();
    const std::vector<double>& dashes = linetype.dashes;
    data.text(linetype.description);
    data.bitDouble(std::accumulate(dashes.begin(), dashes.end(), 0.0,
                                   [](double sum, double dash) { return sum + std::abs(dash); }));
    data.rawChar('A'); // dashes are shifted so that a line ends with one
    data.rawChar(static_cast<unsigned>(dashes.size()));
    for (const double dash : dashes) {
        data.bitDouble(dash);
        data.bitShort(0);                         // no shape
        data.rawPoint({0.0, 0.0});                // its offset
        data.bitDoubles({1.0, 0.0});              // its scale and rotation
        data.bitShort(0);                         // its flags
        object.refer(hardPointer(handles::None)); // its text style
    }
    constexpr std::size_t textAreaSize = 256;
    data.rawBytes(std::string(textAreaSize, '\0'));
    return object;
}

void addLinetypes(Records& records)
{
    const std::vector<Linetype> linetypes = {
        {handles::LinetypeByBlock, "ByBlock", "", {}},
        {handles::LinetypeByLayer, "ByLayer", "", {}},
        {handles::LinetypeContinuous, "Continuous", "Solid line", {}},
        {handles::LinetypeHidden, "HIDDEN", "Hidden __ __ __ __ __ __", {0.25, -0.125}},
        {handles::LinetypeCenter, "CENTER", "Center ____ _ ____ _ ____", {0.75, -0.125, 0.125, -0.125}}};
    for (const Linetype& linetype : linetypes)
        addRecord(records, linetypeEntry(linetype));
}

Object styleEntry()
{
    constexpr double lastHeight = 2.5;
    Object object =
        beginTableEntry(ObjectType::Style, handles::StandardStyle, handles::StyleControl, "Standard");
    BitWriter& data = object.data();
    data.bits({false, false});        // not vertical, not a shape file
    data.bitDoubles({0.0, 1.0, 0.0}); // height, width factor, slant
    data.rawChar(0);                  // not mirrored
    data.bitDouble(lastHeight);
    data.text("txt"); // font
    data.text("");    // no big font
    return object;
}

Object applicationEntry()
{
    Object object =
        beginTableEntry(ObjectType::Application, handles::Application, handles::ApplicationControl, "ACAD");
    object.data().rawChar(0);
    return object;
}

Object dimensionStyleEntry()
{
    Object object = beginTableEntry(ObjectType::DimensionStyle, handles::StandardDimensionStyle,
                                    handles::DimensionStyleControl, "Standard");
    writeDimensionVariables(object.data());
    object.data().bitShorts({-2, -2}); // DIMLWD, DIMLWE: by block
    object.data().bit(false);
    object.refer(hardPointer(handles::StandardStyle));
    for (int arrowhead = 0; arrowhead < 4; ++arrowhead)
        object.refer(hardPointer(handles::None));
    return object;
}

/// The view on opening: the whole drawing with a margin.
void writeView(BitWriter& data, const std::optional<Extents>& extents)
{
    constexpr double aspect = 1.5;
    constexpr double margin = 1.1;
    const double tallest = extents ? std::max(extents->height(), extents->width() / aspect) : 0.0;
    const double height = tallest > 0.0 ? margin * tallest : 10.0;
    data.bitDoubles({height, height * aspect});
    data.rawPoint(extents ? extents->centre() : Point2{});
    data.bitDoubles({0.0, 0.0, 0.0}); // target
    data.bitDoubles({0.0, 0.0, 1.0}); // direction
    data.bitDoubles({0.0, 50.0});     // twist, lens length
    data.bitDoubles({0.0, 0.0});      // front and back clipping
}

Object viewportEntry(const Document& document)
{
    constexpr double spacing = 1.0;
    Object object =
        beginTableEntry(ObjectType::Viewport, handles::ActiveViewport, handles::ViewportControl, "*Active");
    BitWriter& data = object.data();
    writeView(data, document.extents);
    data.bits({false, false, false, true}); // view mode
    data.rawChar(0);                        // render mode: 2D
    data.rawPoint({0.0, 0.0});              // lower left corner on the screen
    data.rawPoint({1.0, 1.0});              // upper right corner
    data.bit(false);                        // UCSFOLLOW
    data.bitShort(100);                     // circle sides
    data.bit(true);                         // fast zoom
    data.bitPair(3);                        // UCSICON: shown, at the origin
    data.bit(false);                        // grid off
    data.rawPoint({spacing, spacing});
    data.bits({false, false}); // snap off, snap style rectangular
    data.bitShort(0);          // isometric pair
    data.bitDouble(0.0);       // snap angle
    data.rawPoint({0.0, 0.0}); // snap base
    data.rawPoint({spacing, spacing});
    data.bits({false, true});         // a coordinate system of its own
    data.bitDoubles({0.0, 0.0, 0.0}); // its origin, x and y axis
    data.bitDoubles({1.0, 0.0, 0.0});
    data.bitDoubles({0.0, 1.0, 0.0});
    data.bitDouble(0.0);                      // elevation
    data.bitShort(0);                         // not orthographic
    object.refer(hardPointer(handles::None)); // its named and its base coordinate system
    object.refer(hardPointer(handles::None));
    return object;
}

} // namespace

Object beginTableEntry(ObjectType type, Handle handle, Handle control, std::string_view name)
{
    Object object(type, handle);
    object.data().bitLong(0); // reactors
    object.data().text(name);
    // Referenced, and not dependent on an external drawing.
    object.data().bit(true);
    object.data().bitShort(0);
    object.data().bit(false);
    object.refer(softPointer(control));
    object.refer(hardOwner(handles::None));
    object.refer(hardPointer(handles::None)); // external drawing
    return object;
}

void addTables(Records& records, const Document& document)
{
    addControlObjects(records, document);
    addLayers(records, document);
    addLinetypes(records);
    addRecord(records, styleEntry());
    addRecord(records, applicationEntry());
    addRecord(records, dimensionStyleEntry());
    addRecord(records, viewportEntry(document));
}

} // namespace dwg
