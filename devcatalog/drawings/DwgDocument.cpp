#include "devcatalog/drawings/DwgDocument.h"

#include "devcatalog/drawings/DrawingCheck.h"
#include "devcatalog/drawings/DwgText.h"

#include <algorithm>
#include <set>
#include <stdexcept>

namespace devcatalog
{

namespace
{

constexpr std::size_t longestText = 255;
/// Linetypes by LineKind.
constexpr std::array<DwgHandle, 3> linetypes = {handles::linetypeContinuous, handles::linetypeHidden,
                                                handles::linetypeCenter};

bool isForbiddenInNames(char character)
{
    static const std::string forbidden = "<>/\\\":;?*|,=`\x7F";
    return static_cast<unsigned char>(character) < 0x20 || forbidden.find(character) != std::string::npos;
}

/// Checks a layer's name and returns it in the file's code page.
std::string encodeLayerName(const std::string& name)
{
    if (std::any_of(name.begin(), name.end(), isForbiddenInNames)) {
        throw std::invalid_argument("The layer name \"" + name + "\" has a character that is not allowed");
    }
    // Of the usual stand-ins the question mark is not allowed in names.
    std::string encoded = toWindows1252(name, '_');
    if (encoded.empty() || encoded.size() > longestText) {
        throw std::invalid_argument("The layer name \"" + name + "\" does not have 1 to 255 characters");
    }
    return encoded;
}

/// The name as CAD programs compare it; the letters of Windows-1252 from 0xC0 have their small forms 0x20
/// above.
std::string foldCase(std::string name)
{
    for (char& character : name) {
        const auto code = static_cast<unsigned char>(character);
        const bool capital = (code >= 'A' && code <= 'Z') || (code >= 0xC0 && code <= 0xDE && code != 0xD7);
        if (capital) {
            character = static_cast<char>(code + 0x20);
        }
    }
    return name;
}

void checkColour(const DwgLayerStyle& style)
{
    if (style.colour < 1 || style.colour > 255) {
        throw std::invalid_argument("The layer \"" + style.name + "\" has a colour outside 1 to 255");
    }
}

std::array<DwgLayer, 3> makeLayers(const DwgLayerStyles& styles)
{
    std::array<DwgLayer, 3> layers;
    std::set<std::string> names = {"0"};
    for (std::size_t index = 0; index < layers.size(); ++index) {
        const DwgLayerStyle& style = styles.at(index);
        checkColour(style);
        layers.at(index) = {handles::firstLayer + static_cast<DwgHandle>(index), encodeLayerName(style.name),
                            style.colour, lineweightIndex(style.lineweight), linetypes.at(index)};
        if (!names.insert(foldCase(layers.at(index).name)).second) {
            throw std::invalid_argument("The layer name \"" + style.name + "\" occurs twice");
        }
    }
    return layers;
}

} // namespace

DwgDocument makeDwgDocument(const Drawing& drawing, const DwgLayerStyles& styles)
{
    checkDrawing(drawing);
    DwgDocument document;
    document.title = toWindows1252(drawing.title, '?').substr(0, longestText);
    document.layers = makeLayers(styles);
    document.entities = drawing.entities;
    document.extents = extentsOf(drawing.entities);
    document.firstEntity = document.layers.back().handle + 1;
    return document;
}

int lineweightIndex(int hundredths)
{
    static constexpr std::array<int, 24> widths = {0,  5,  9,  13, 15, 18,  20,  25,  30,  35,  40,  50,
                                                   53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211};
    const auto found = std::find(widths.begin(), widths.end(), hundredths);
    if (found == widths.end()) {
        throw std::invalid_argument("There is no line width of " + std::to_string(hundredths) + "/100 mm");
    }
    return static_cast<int>(found - widths.begin());
}

} // namespace devcatalog
