#include "dev/dwg/HeaderVariables.h"

#include "dev/dwg/BitWriter.h"
#include "dev/dwg/DimensionVariables.h"
#include "dev/dwg/Guid.h"
#include "dev/dwg/Spaces.h"

namespace dwg
{

namespace
{

constexpr int ByLayer = 256;

/// What the file begins with; its meaning was never published.
void writePreamble(BitWriter& data)
{
    data.bitDoubles({412148564080.0, 1.0, 1.0, 1.0});
    for (const char* const text : {"m", "", "", ""})
        data.text(text);
    data.bitLong(24);
    data.bitLong(0);
    data.handle(hardPointer(handles::None)); // current viewport header
}

void writeSwitches(BitWriter& data)
{
    data.bits({
        true,  // DIMASO
        true,  // DIMSHO
        false, // PLINEGEN
        false, // ORTHOMODE
        true,  // REGENMODE
        true,  // FILLMODE
        false, // QTEXTMODE
        true,  // PSLTSCALE
        false, // LIMCHECK
        true,  // USRTIMER
        false, // SKPOLY
        false, // ANGDIR
        false, // SPLFRAME
        false, // MIRRTEXT
        true,  // WORLDVIEW
        true,  // TILEMODE
        false, // PLIMCHECK
        true,  // VISRETAIN
        false, // DISPSILH
        false, // PELLIPSE
    });
}

void writeModes(BitWriter& data)
{
    data.bitShorts({
        1,                // PROXYGRAPHICS
        3020,             // TREEDEPTH
        2,                // LUNITS: decimal
        4,                // LUPREC
        0,                // AUNITS: degrees
        0,                // AUPREC
        1,                // ATTMODE
        0,                // PDMODE
        0,    0, 0, 0, 0, // USERI1 to USERI5
        8,                // SPLINESEGS
        6,                // SURFU
        6,                // SURFV
        6,                // SURFTYPE
        6,                // SURFTAB1
        6,                // SURFTAB2
        6,                // SPLINETYPE
        3,                // SHADEDGE
        70,               // SHADEDIF
        0,                // UNITMODE
        64,               // MAXACTVP
        4,                // ISOLINES
        0,                // CMLJUST
        50,               // TEXTQLTY
    });
}

void writeSizes(BitWriter& data)
{
    data.bitDoubles({
        1.0,                     // LTSCALE
        2.5,                     // TEXTSIZE
        1.0,                     // TRACEWID
        1.0,                     // SKETCHINC
        0.0,                     // FILLETRAD
        0.0,                     // THICKNESS
        0.0,                     // ANGBASE
        0.0,                     // PDSIZE
        0.0,                     // PLINEWID
        0.0, 0.0, 0.0, 0.0, 0.0, // USERR1 to USERR5
        0.0, 0.0, 0.0, 0.0,      // CHAMFERA to CHAMFERD
        0.5,                     // FACETRES
        1.0,                     // CMLSCALE
        1.0,                     // CELTSCALE
    });
    data.text("."); // MENUNAME
}

void writeDate(BitWriter& data, Date date)
{
    data.bitLong(date.julianDay);
    data.bitLong(date.milliseconds);
}

void writeDates(BitWriter& data)
{
    writeDate(data, FileDate); // TDCREATE
    writeDate(data, FileDate); // TDUPDATE
    writeDate(data, {});       // TDINDWG
    writeDate(data, {});       // TDUSRTIMER
}

/// What a new entity would look like.
void writeCurrentObjects(BitWriter& data, Handle firstUnusedHandle)
{
    data.colour(ByLayer);                          // CECOLOR
    data.handle(selfReference(firstUnusedHandle)); // HANDSEED
    data.handle(hardPointer(handles::LayerZero));  // CLAYER
    data.handle(hardPointer(handles::StandardStyle));
    data.handle(hardPointer(handles::LinetypeByLayer));
    data.handle(hardPointer(handles::StandardDimensionStyle));
    data.handle(hardPointer(handles::StandardMultilineStyle));
    data.bitDouble(0.0); // PSVPSCALE
}

void writeSpace(BitWriter& data, const SpaceBounds& bounds)
{
    data.bitDoubles({0.0, 0.0, 0.0}); // INSBASE
    writeExtents(data, bounds.extents);
    data.rawPoint(bounds.limits.min);        // LIMMIN
    data.rawPoint(bounds.limits.max);        // LIMMAX
    data.bitDouble(0.0);                     // ELEVATION
    data.bitDoubles({0.0, 0.0, 0.0});        // UCSORG
    data.bitDoubles({1.0, 0.0, 0.0});        // UCSXDIR
    data.bitDoubles({0.0, 1.0, 0.0});        // UCSYDIR
    data.handle(hardPointer(handles::None)); // UCSNAME
    data.handle(hardPointer(handles::None)); // UCSORTHOREF
    data.bitShort(0);                        // UCSORTHOVIEW
    data.handle(hardPointer(handles::None)); // UCSBASE
    constexpr int orthographicViews = 6;
    for (int view = 0; view < orthographicViews; ++view)
        data.bitDoubles({0.0, 0.0, 0.0}); // its origin
}

void writeDimensions(BitWriter& data)
{
    writeDimensionVariables(data);
    data.handle(hardPointer(handles::StandardStyle)); // DIMTXSTY
    data.handle(hardPointer(handles::None));          // DIMLDRBLK
    data.handle(hardPointer(handles::None));          // DIMBLK
    data.handle(hardPointer(handles::None));          // DIMBLK1
    data.handle(hardPointer(handles::None));          // DIMBLK2
    data.bitShorts({-2, -2});                         // DIMLWD, DIMLWE: by block
}

void writeTablesAndDictionaries(BitWriter& data)
{
    for (const Handle control :
         {handles::BlockControl, handles::LayerControl, handles::StyleControl, handles::LinetypeControl,
          handles::ViewControl, handles::UcsControl, handles::ViewportControl, handles::ApplicationControl,
          handles::DimensionStyleControl, handles::ViewportHeaderControl})
        data.handle(hardOwner(control));
    data.handle(hardPointer(handles::Groups));
    data.handle(hardPointer(handles::MultilineStyles));
    data.handle(hardOwner(handles::NamedObjects));
    data.bitShorts({1, 70}); // TSTACKALIGN, TSTACKSIZE
    data.text("");           // HYPERLINKBASE
    data.text("");           // STYLESHEET
    data.handle(hardPointer(handles::Layouts));
    data.handle(hardPointer(handles::PlotSettings));
    data.handle(hardPointer(handles::PlotStyles));
}

void writeIdentity(BitWriter& data, const Document& document, std::string_view content)
{
    constexpr std::uint32_t flags =
        0x2A1D; // among them: lineweight by layer, extended names, plot style by colour
    data.bitLong(flags);
    data.bitShort(document.insertionUnits);
    data.bitShort(0); // CEPSNTYPE: plot style by layer
    data.text(makeDwgGuid("fingerprint " + document.title));
    data.text(makeDwgGuid(content));
    for (const Handle object : {handles::PaperSpace, handles::ModelSpace, handles::LinetypeByLayer,
                                handles::LinetypeByBlock, handles::LinetypeContinuous})
        data.handle(hardPointer(object));
    data.bitShorts({0, 0, 0, 0});
}

} // namespace

std::string makeHeaderVariables(const Document& document, std::string_view content)
{
    BitWriter data;
    writePreamble(data);
    writeSwitches(data);
    writeModes(data);
    writeSizes(data);
    writeDates(data);
    writeCurrentObjects(data, document.firstUnusedHandle());
    writeSpace(data, boundsOf(Space::Paper, document));
    writeSpace(data, boundsOf(Space::Model, document));
    writeDimensions(data);
    writeTablesAndDictionaries(data);
    writeIdentity(data, document, content);
    return data.bytes();
}

} // namespace dwg
