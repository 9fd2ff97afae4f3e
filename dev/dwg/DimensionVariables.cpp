#include "dev/dwg/DimensionVariables.h"

namespace dwg
{

namespace
{

void writeSizes(BitWriter& data)
{
    data.bitDoubles({
        1.0,    // DIMSCALE
        0.18,   // DIMASZ
        0.0625, // DIMEXO
        0.38,   // DIMDLI
        0.18,   // DIMEXE
        0.0,    // DIMRND
        0.0,    // DIMDLE
        0.0,    // DIMTP
        0.0,    // DIMTM
    });
}

void writeTolerances(BitWriter& data)
{
    data.bits({
        false, // DIMTOL
        false, // DIMLIM
        true,  // DIMTIH
        true,  // DIMTOH
        false, // DIMSE1
        false, // DIMSE2
    });
    data.bitShorts({
        0, // DIMTAD
        0, // DIMZIN
        0, // DIMAZIN
    });
}

void writeText(BitWriter& data)
{
    data.bitDoubles({
        0.18, // DIMTXT
        0.09, // DIMCEN
        0.0,  // DIMTSZ
        25.4, // DIMALTF
        1.0,  // DIMLFAC
        0.0,  // DIMTVP
        1.0,  // DIMTFAC
        0.09, // DIMGAP
        0.0,  // DIMALTRND
    });
}

void writeArrangement(BitWriter& data)
{
    data.bit(false);  // DIMALT
    data.bitShort(2); // DIMALTD
    data.bits({
        false, // DIMTOFL
        false, // DIMSAH
        false, // DIMTIX
        false, // DIMSOXD
    });
    data.colour(0); // DIMCLRD
    data.colour(0); // DIMCLRE
    data.colour(0); // DIMCLRT
}

void writeNumberFormat(BitWriter& data)
{
    data.bitShorts({
        0,   // DIMADEC
        4,   // DIMDEC
        4,   // DIMTDEC
        2,   // DIMALTU
        2,   // DIMALTTD
        0,   // DIMAUNIT
        0,   // DIMFRAC
        2,   // DIMLUNIT
        '.', // DIMDSEP
        0,   // DIMTMOVE
        0,   // DIMJUST
    });
    data.bits({
        false, // DIMSD1
        false, // DIMSD2
    });
    data.bitShorts({
        1, // DIMTOLJ
        0, // DIMTZIN
        0, // DIMALTZ
        0, // DIMALTTZ
    });
    data.bit(false);  // DIMUPT
    data.bitShort(3); // DIMATFIT
}

} // namespace

void writeDimensionVariables(BitWriter& data)
{
    data.text(""); // DIMPOST
    data.text(""); // DIMAPOST
    writeSizes(data);
    writeTolerances(data);
    writeText(data);
    writeArrangement(data);
    writeNumberFormat(data);
}

} // namespace dwg
