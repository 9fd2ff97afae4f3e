#include "dev/catalog/parts/SizeTables.h"

namespace devcatalog
{

namespace
{

// Each size is a row: its designation, the values of the dimensions in their order, those of the variant.
// clang-format off

// ISO 4014; fully threaded ones ISO 4017.
constexpr Dimension HexBoltDimensions[] = {
    {"Thread diameter", "mm"}, {"Pitch", "mm"}, {"Width across flats", "mm"}, {"Head height", "mm"},
};
constexpr Size HexBoltSizes[] = {
    {"M5", "5 0.8 8 3.5", "16 20 25 30"},
    {"M6", "6 1 10 4", "16 20 30 40"},
    {"M8", "8 1.25 13 5.3", "20 30 40 50"},
    {"M10", "10 1.5 16 6.4", "25 35 50 60"},
    {"M12", "12 1.75 18 7.5", "30 45 60 70"},
    {"M16", "16 2 24 10", "40 60 80 90"},
    {"M20", "20 2.5 30 12.5", "50 80 100"},
    {"M24", "24 3 36 15", "60 90 120"},
};

// ASME B18.2.1, rounded to hundredths of a millimetre.
constexpr Size InchHexBoltSizes[] = {
    {"1/4\"-20", "6.35 1.27 11.11 4.14", "19.05 25.4 38.1"},
    {"5/16\"-18", "7.94 1.411 12.7 5.36", "25.4"},
    {"3/8\"-16", "9.53 1.588 14.29 6.17", "25.4 38.1 50.8"},
    {"1/2\"-13", "12.7 1.954 19.05 8.2", "38.1 50.8 63.5"},
};

// ISO 4762.
constexpr Dimension SocketScrewDimensions[] = {
    {"Thread diameter", "mm"}, {"Pitch", "mm"}, {"Head diameter", "mm"}, {"Head height", "mm"},
    {"Socket size", "mm"}, {"Socket depth", "mm"},
};
constexpr Size SocketScrewSizes[] = {
    {"M3", "3 0.5 5.5 3 2.5 1.3", "8 10 16"},
    {"M4", "4 0.7 7 4 3 2", "10 16 20"},
    {"M5", "5 0.8 8.5 5 4 2.5", "12 16 20 25"},
    {"M6", "6 1 10 6 5 3", "16 20 25 30"},
    {"M8", "8 1.25 13 8 6 4", "20 25 30 40"},
    {"M10", "10 1.5 16 10 8 5", "25 30 40 50"},
    {"M12", "12 1.75 18 12 10 6", "30 40 50 60"},
    {"M16", "16 2 24 16 14 8", "40 50 60 80"},
};

// Thin nuts ISO 4035, others ISO 4032.
constexpr Dimension HexNutDimensions[] = {
    {"Thread diameter", "mm"}, {"Pitch", "mm"}, {"Width across flats", "mm"},
};
constexpr Size HexNutSizes[] = {
    {"M5", "5 0.8 8", "2.7 4.7"},
    {"M6", "6 1 10", "3.2 5.2"},
    {"M8", "8 1.25 13", "4 6.8"},
    {"M10", "10 1.5 16", "5 8.4"},
    {"M12", "12 1.75 18", "6 10.8"},
    {"M16", "16 2 24", "8 14.8"},
    {"M20", "20 2.5 30", "10 18"},
    {"M24", "24 3 36", "12 21.5"},
};

// ISO 7089 in the greater thickness; the thin ones are the makers' own.
constexpr Dimension WasherDimensions[] = {
    {"Inner diameter", "mm"}, {"Outer diameter", "mm"},
};
constexpr Size WasherSizes[] = {
    {"M5", "5.3 10", "0.5 1"},
    {"M6", "6.4 12", "0.8 1.6"},
    {"M8", "8.4 16", "0.8 1.6"},
    {"M10", "10.5 20", "1 2"},
    {"M12", "13 24", "1.6 2.5"},
    {"M16", "17 30", "2 3"},
    {"M20", "21 37", "2 3"},
    {"M24", "25 44", "2 4"},
};

// ISO 8734.
constexpr Dimension DowelPinDimensions[] = {
    {"Diameter", "mm"},
};
constexpr Size DowelPinSizes[] = {
    {"3 m6", "3", "10 16 20"},
    {"4 m6", "4", "12 20 24"},
    {"5 m6", "5", "16 20 30"},
    {"6 m6", "6", "20 30 40"},
    {"8 m6", "8", "24 36 50"},
    {"10 m6", "10", "30 40 60"},
};

constexpr Dimension StarKnobDimensions[] = {
    {"Head diameter", "mm"}, {"Head height", "mm"}, {"Hub diameter", "mm"}, {"Lobes", ""},
    {"Thread diameter", "mm"}, {"Pitch", "mm"},
};
constexpr Size StarKnobSizes[] = {
    {"D32-M6", "32 20 14 5 6 1", "15 20 30"},
    {"D40-M8", "40 25 18 5 8 1.25", "20 30 40"},
    {"D50-M10", "50 32 22 5 10 1.5", "25 30 45"},
    {"D63-M12", "63 40 26 7 12 1.75", "40"},
};

// ISO 15.
constexpr Dimension BallBearingDimensions[] = {
    {"Bore", "mm"}, {"Outer diameter", "mm"}, {"Width", "mm"},
};
constexpr Size BallBearingSizes[] = {
    {"608", "8 22 7", "2RS 2Z open"},
    {"6000", "10 26 8", "2RS 2Z open"},
    {"6001", "12 28 8", "open 2RS 2Z"},
    {"6002", "15 32 9", "2RS open"},
    {"6003", "17 35 10", "open 2RS"},
    {"6004", "20 42 12", "2RS 2Z open"},
    {"6204", "20 47 14", "2RS 2Z open"},
    {"6205", "25 52 15", "open 2Z 2RS"},
    {"6206", "30 62 16", "2RS 2Z open"},
    {"6208", "40 80 18", "2RS 2Z open"},
    {"6210", "50 90 20", "open 2Z"},
};

// ISO 3228.
constexpr Dimension PillowBlockDimensions[] = {
    {"Bore", "mm"}, {"Length", "mm"}, {"Centre height", "mm"}, {"Depth", "mm"}, {"Housing radius", "mm"},
    {"Bolt spacing", "mm"},
};
constexpr Size PillowBlockSizes[] = {
    {"12", "12 122 30.2 36 28 96", "11 13"},
    {"20", "20 127 33.3 38 31 96", "11 13"},
    {"25", "25 140 36.5 38 34 105", "11 13"},
    {"30", "30 165 42.9 48 40 121", "13 17"},
    {"40", "40 184 49.2 54 47 137", "13 17"},
};

constexpr Dimension SpurGearDimensions[] = {
    {"Module", "mm"}, {"Teeth", ""}, {"Face width", "mm"}, {"Hub diameter", "mm"},
};
constexpr Size SpurGearSizes[] = {
    {"M1 Z20", "1 20 10 16", "6 8"},
    {"M1 Z32", "1 32 10 20", "8 10"},
    {"M1.5 Z18", "1.5 18 15 21", "8 10"},
    {"M1.5 Z30", "1.5 30 15 28", "10 12 14"},
    {"M2 Z17", "2 17 20 25", "10 12"},
    {"M2 Z24", "2 24 20 35", "12 15 18"},
    {"M2 Z40", "2 40 20 45", "15 20 25"},
    {"M3 Z20", "3 20 30 45", "20"},
    {"M3 Z36", "3 36 30 60", "20 25 30"},
};

// ISO 4183.
constexpr Dimension VBeltPulleyDimensions[] = {
    {"Pitch diameter", "mm"}, {"Grooves", ""}, {"Groove spacing", "mm"}, {"Edge distance", "mm"},
    {"Groove depth", "mm"}, {"Groove rise", "mm"}, {"Belt width", "mm"},
    {"Groove angle", "°"},
};
constexpr Size VBeltPulleySizes[] = {
    {"SPZ 63-1", "63 1 12 8 11 2 8.5 34", "12 16"},
    {"SPZ 80-2", "80 2 12 8 11 2 8.5 34", "16 20"},
    {"SPZ 100-2", "100 2 12 8 11 2 8.5 38", "16 20 25"},
    {"SPA 100-1", "100 1 15 10 13.8 2.8 11 34", "18 22"},
    {"SPA 125-2", "125 2 15 10 13.8 2.8 11 38", "20 25 30"},
    {"SPA 140-3", "140 3 15 10 13.8 2.8 11 38", "25 30 35"},
    {"SPA 180-3", "180 3 15 10 13.8 2.8 11 38", "30 40"},
};

constexpr Dimension CompressionSpringDimensions[] = {
    {"Wire diameter", "mm"}, {"Outer diameter", "mm"}, {"Turns", ""},
};
constexpr Size CompressionSpringSizes[] = {
    {"0.8 x 8", "0.8 8 8.5", "15 20 25"},
    {"1 x 10", "1 10 8.5", "20 25 30"},
    {"1.25 x 12.5", "1.25 12.5 8", "25 30 35"},
    {"1.6 x 16", "1.6 16 8", "30 40 45"},
    {"2 x 20", "2 20 7.5", "35 45 50"},
    {"2.5 x 25", "2.5 25 7.5", "40 50 60"},
    {"3.2 x 32", "3.2 32 7", "50 65 75"},
    {"4 x 40", "4 40 6.5", "60 80 90"},
};

constexpr Dimension AngleBracketDimensions[] = {
    {"Leg length", "mm"}, {"Height", "mm"}, {"Thickness", "mm"}, {"Hole diameter", "mm"},
    {"Holes per leg", ""},
};
constexpr Size AngleBracketSizes[] = {
    {"20x20", "20 20 2 4.5 1", "16 18 20"},
    {"30x30", "30 30 3 6.5 1", "20 25 30"},
    {"40x40", "40 40 4 6.5 2", "40 60"},
    {"50x30", "50 30 4 8.5 2", "40 60"},
    {"60x60", "60 60 5 8.5 2", "50 60 80"},
    {"80x80", "80 80 6 10.5 2", "60 80 100"},
    {"100x60", "100 60 6 10.5 3", "80 120"},
};

constexpr Dimension AluminiumProfileDimensions[] = {
    {"Size", "mm"}, {"Slot width", "mm"}, {"Lip thickness", "mm"}, {"Slot depth", "mm"},
    {"Slot inner width", "mm"}, {"Core hole", "mm"},
};
constexpr Size AluminiumProfileSizes[] = {
    {"20x20", "20 6 1.8 6.2 11 4.3", "40 60 80"},
    {"30x30", "30 8 2.2 9.2 16.5 6.8", "60 90 120"},
    {"40x40", "40 8 4.5 12.3 20 6.8", "80 120 160"},
    {"45x45", "45 10 4.5 14.5 20 10", "80 120 160"},
    {"60x60", "60 10 5 16 25 14", "120 180 240"},
};

// EN 1092-1, type 11, PN 16.
constexpr Dimension PipeFlangeDimensions[] = {
    {"Outer diameter", "mm"}, {"Bore", "mm"}, {"Bolt circle", "mm"}, {"Bolt hole", "mm"}, {"Bolts", ""},
    {"Neck diameter", "mm"}, {"Neck height", "mm"},
};
constexpr Size PipeFlangeSizes[] = {
    {"DN 15", "95 17.3 65 14 4 32 19", "14 16"},
    {"DN 25", "115 28.5 85 14 4 46 20", "16 18"},
    {"DN 40", "150 43.1 110 18 4 64 23", "16 18"},
    {"DN 50", "165 54.5 125 18 4 74 25", "18 20"},
    {"DN 80", "200 82.5 160 18 8 105 30", "20 24"},
    {"DN 100", "220 107.1 180 18 8 131 32", "20 24"},
    {"DN 150", "285 159.3 240 22 8 184 33", "22"},
};

constexpr Dimension BridgeHandleDimensions[] = {
    {"Hole spacing", "mm"}, {"Grip diameter", "mm"}, {"Thread diameter", "mm"}, {"Pitch", "mm"},
};
constexpr Size BridgeHandleSizes[] = {
    {"64", "64 8 4 0.7", "28 35"},
    {"96", "96 10 5 0.8", "35 40"},
    {"128", "128 12 6 1", "40 50"},
    {"160", "160 14 6 1", "45 55"},
    {"200", "200 16 8 1.25", "55 65"},
};

constexpr Dimension EnclosureDimensions[] = {
    {"Width", "mm"}, {"Depth", "mm"}, {"Wall thickness", "mm"}, {"Gland hole", "mm"},
};
constexpr Size EnclosureSizes[] = {
    {"80x82", "80 82 3 12.5", "40 55"},
    {"120x80", "120 80 3 16.5", "55 65"},
    {"160x120", "160 120 3.5 20.5", "75"},
    {"200x150", "200 150 4 20.5", "75 100"},
    {"240x160", "240 160 4 25.5", "90 120"},
};

// ISO 15552.
constexpr Dimension PneumaticCylinderDimensions[] = {
    {"Bore", "mm"}, {"Cover size", "mm"}, {"Cover length", "mm"}, {"Body length", "mm"},
    {"Screw spacing", "mm"}, {"Screw diameter", "mm"}, {"Port diameter", "mm"}, {"Rod diameter", "mm"},
    {"Rod thread", "mm"}, {"Rod thread pitch", "mm"}, {"Thread length", "mm"},
};
constexpr Size PneumaticCylinderSizes[] = {
    {"32", "32 47 27 94 32.5 5.2 9.5 12 10 1.25 22", "25 50 80 100"},
    {"40", "40 53 30 105 38 5.2 12.5 16 12 1.25 24", "25 50 80 100"},
    {"50", "50 65 31 106 46.5 6.8 12.5 20 16 1.5 32", "50 80 100 125"},
    {"63", "63 75 34 121 56.5 6.8 16 20 16 1.5 32", "50 80 100 125"},
    {"80", "80 95 36 128 72 8.5 16 25 20 1.5 40", "80 100 125 160"},
    {"100", "100 115 39 138 89 8.5 20 25 20 1.5 40", "80 100 160"},
};

constexpr Dimension ProximitySensorDimensions[] = {
    {"Thread diameter", "mm"}, {"Pitch", "mm"}, {"Barrel length", "mm"}, {"Nut width", "mm"},
    {"Nut height", "mm"},
};
constexpr Size ProximitySensorSizes[] = {
    {"M8", "8 1 40 13 4", "1.5 2"},
    {"M12", "12 1 50 17 4", "2 4"},
    {"M18", "18 1 55 24 4", "5 8"},
    {"M30", "30 1.5 60 36 5", "10 15"},
};

// Frame sizes of NEMA ICS 16 (NEMA 11 to NEMA 34).
constexpr Dimension StepperMotorDimensions[] = {
    {"Frame size", "mm"}, {"Shaft diameter", "mm"}, {"Shaft length", "mm"}, {"Pilot diameter", "mm"},
    {"Pilot height", "mm"}, {"Hole spacing", "mm"}, {"Hole diameter", "mm"},
};
constexpr Size StepperMotorSizes[] = {
    {"28", "28.2 5 20 22 2 23 2.5", "32 45 51"},
    {"35", "35.2 5 20 22 2 26 3", "26 34"},
    {"42", "42.3 5 24 22 2 31 3", "34 40 48"},
    {"57", "56.4 6.35 21 38.1 1.6 47.14 5", "41 56 76"},
    {"86", "85.8 14 32 73 2 69.6 5.5", "65 80 114"},
};

constexpr SizeTable Tables[] = {
    {"hex-bolt", "hex-bolt", "{size} x {variant}",
     HexBoltDimensions, {"Length", "mm"}, HexBoltSizes},
    {"inch hex-bolt", "hex-bolt", "{size}, {variant} mm",
     HexBoltDimensions, {"Length", "mm"}, InchHexBoltSizes},
    {"socket-screw", "socket-screw", "{size} x {variant}",
     SocketScrewDimensions, {"Length", "mm"}, SocketScrewSizes},
    {"hex-nut", "hex-nut", "{size}, height {variant}",
     HexNutDimensions, {"Height", "mm"}, HexNutSizes},
    {"washer", "washer", "{size}, thickness {variant}",
     WasherDimensions, {"Thickness", "mm"}, WasherSizes},
    {"dowel-pin", "dowel-pin", "{size} x {variant}",
     DowelPinDimensions, {"Length", "mm"}, DowelPinSizes},
    {"star-knob", "star-knob", "{size} x {variant}",
     StarKnobDimensions, {"Length", "mm"}, StarKnobSizes},
    {"ball-bearing", "ball-bearing", "{size} {variant}",
     BallBearingDimensions, {"Sealing", ""}, BallBearingSizes},
    {"pillow-block", "pillow-block", "{size}, bolt hole {variant}",
     PillowBlockDimensions, {"Bolt hole", "mm"}, PillowBlockSizes},
    {"spur-gear", "spur-gear", "{size}, bore {variant}",
     SpurGearDimensions, {"Bore", "mm"}, SpurGearSizes},
    {"v-belt-pulley", "v-belt-pulley", "{size}, bore {variant}",
     VBeltPulleyDimensions, {"Bore", "mm"}, VBeltPulleySizes},
    {"compression-spring", "compression-spring", "{size}, free length {variant}",
     CompressionSpringDimensions, {"Free length", "mm"}, CompressionSpringSizes},
    {"angle-bracket", "angle-bracket", "{size} x {variant}",
     AngleBracketDimensions, {"Width", "mm"}, AngleBracketSizes},
    {"aluminium-profile", "aluminium-profile", "{size}, {variant} mm",
     AluminiumProfileDimensions, {"Length", "mm"}, AluminiumProfileSizes},
    {"pipe-flange", "pipe-flange", "{size}, thickness {variant}",
     PipeFlangeDimensions, {"Thickness", "mm"}, PipeFlangeSizes},
    {"bridge-handle", "bridge-handle", "{size}, height {variant}",
     BridgeHandleDimensions, {"Height", "mm"}, BridgeHandleSizes},
    {"enclosure", "enclosure", "{size} x {variant}",
     EnclosureDimensions, {"Height", "mm"}, EnclosureSizes},
    {"pneumatic-cylinder", "pneumatic-cylinder", "{size}-{variant}",
     PneumaticCylinderDimensions, {"Stroke", "mm"}, PneumaticCylinderSizes},
    {"proximity-sensor", "proximity-sensor", "{size}, Sn {variant} mm",
     ProximitySensorDimensions, {"Switching distance", "mm"}, ProximitySensorSizes},
    {"stepper-motor", "stepper-motor", "{size}-{variant}",
     StepperMotorDimensions, {"Body length", "mm"}, StepperMotorSizes},
};

// clang-format on

constexpr std::size_t countWords(std::string_view text)
{
    std::size_t count = 0;
    char before = ' ';
    for (const char character : text) {
        count += before == ' ' && character != ' ' ? 1 : 0;
        before = character;
    }
    return count;
}

constexpr bool hasAllValues(const SizeTable& table)
{
    for (const Size& size : table.sizes)
        if (countWords(size.values) != table.dimensions.size() || countWords(size.variants) == 0)
            return false;
    return true;
}

constexpr bool haveAllValues()
{
    for (const SizeTable& table : Tables)
        if (!hasAllValues(table))
            return false;
    return true;
}

static_assert(haveAllValues(), "a size has a value for each dimension of its table, and a variant");

} // namespace

Rows<SizeTable> sizeTables()
{
    return Tables;
}

} // namespace devcatalog
