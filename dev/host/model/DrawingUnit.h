#pragma once

#include <QString>
#include <QVector>

namespace devhost
{

/// What one of a drawing's numbers stands for; the values are those of the variable INSUNITS in DWG and DXF
/// files.
enum class DrawingUnit {
    None = 0,
    Inch = 1,
    Foot = 2,
    Mile = 3,
    Millimetre = 4,
    Centimetre = 5,
    Metre = 6,
    Kilometre = 7,
    Mil = 9,
    Yard = 10,
    Micrometre = 13,
    Decimetre = 14,
};

/// @return the unit of that INSUNITS value; None for a value that is not among the units.
DrawingUnit drawingUnitOf(int insUnits);

/// @return the unit's symbol, "cm" say; "no unit" for None.
QString unitSymbol(DrawingUnit unit);

/// @return what turns lengths in @p from into lengths in @p to; 1 when either is None, as CAD programs
/// insert drawings without a unit.
double unitFactor(DrawingUnit from, DrawingUnit to);

/// @return the units that are offered for a drawing.
QVector<DrawingUnit> drawingUnitChoices();

} // namespace devhost
