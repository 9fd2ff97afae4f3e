#include "dev/host/model/DrawingUnit.h"

#include <algorithm>
#include <iterator>

namespace devhost
{

namespace
{

struct Entry {
    DrawingUnit unit;
    const char* symbol;
    double metres;
};

constexpr Entry Units[] = {
    {DrawingUnit::None, "no unit", 0.0},
    {DrawingUnit::Inch, "in", 0.0254},
    {DrawingUnit::Foot, "ft", 0.3048},
    {DrawingUnit::Mile, "mi", 1609.344},
    {DrawingUnit::Millimetre, "mm", 0.001},
    {DrawingUnit::Centimetre, "cm", 0.01},
    {DrawingUnit::Metre, "m", 1.0},
    {DrawingUnit::Kilometre, "km", 1000.0},
    {DrawingUnit::Mil, "mil", 0.0000254},
    {DrawingUnit::Yard, "yd", 0.9144},
    {DrawingUnit::Micrometre, "µm", 0.000001},
    {DrawingUnit::Decimetre, "dm", 0.1},
};

const Entry& entryOf(DrawingUnit unit)
{
    const auto* found = std::find_if(std::begin(Units), std::end(Units),
                                     [=](const Entry& entry) { return entry.unit == unit; });
    return found != std::end(Units) ? *found : Units[0];
}

} // namespace

DrawingUnit drawingUnitOf(int insUnits)
{
    return entryOf(static_cast<DrawingUnit>(insUnits)).unit;
}

QString unitSymbol(DrawingUnit unit)
{
    return QString::fromUtf8(entryOf(unit).symbol);
}

double unitFactor(DrawingUnit from, DrawingUnit to)
{
    if (from == to || from == DrawingUnit::None || to == DrawingUnit::None)
        return 1.0;
    return entryOf(from).metres / entryOf(to).metres;
}

QVector<DrawingUnit> drawingUnitChoices()
{
    return {DrawingUnit::Millimetre, DrawingUnit::Centimetre, DrawingUnit::Metre,
            DrawingUnit::Inch,       DrawingUnit::Foot,       DrawingUnit::None};
}

} // namespace devhost
