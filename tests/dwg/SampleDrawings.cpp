#include "tests/dwg/SampleDrawings.h"

#include "dev/catalog/drawings/PartDrawing.h"
#include "dev/catalog/parts/PartCatalog.h"

#include <set>
#include <string_view>

using namespace devcatalog;
using namespace dwg;

namespace test
{

namespace
{

constexpr double QuarterTurn = 0.41421356237309503; // the bulge of a quarter of a circle

Entity line(LineKind kind, Point2 from, Point2 to)
{
    return {kind, LineSegment{from, to}};
}

Entity open(LineKind kind, std::vector<PolylineVertex> vertices)
{
    return {kind, Polyline{std::move(vertices), false}};
}

Entity closed(LineKind kind, std::vector<PolylineVertex> vertices)
{
    return {kind, Polyline{std::move(vertices), true}};
}

Drawing singleLine()
{
    return {"One line", {line(LineKind::Centre, {-37.5, -45.5}, {-37.5, -29.5})}};
}

/// Arcs of both senses, below and above half a turn, along the line and where it closes.
Drawing arcs()
{
    return {"Arcs",
            {open(LineKind::Outline, {{{1, 0}, QuarterTurn}, {{0, 1}, 0}}),
             open(LineKind::Hidden, {{{4, 0}, -QuarterTurn}, {{3, 1}, 0}}),
             open(LineKind::Outline, {{{6, 0}, 2}, {{6, 1}, 0}}),
             // The closing line is straight, an arc, and an arc like all others.
             closed(LineKind::Outline, {{{0, 3}, 0}, {{2, 3}, 1}, {{2, 5}, 0}}),
             closed(LineKind::Outline, {{{6, 3}, 0}, {{8, 3}, 1}, {{8, 5}, 0}, {{6, 5}, 1}}),
             closed(LineKind::Centre, {{{10, 3}, 1}, {{12, 3}, 1}}),
             closed(LineKind::Hidden, {{{10, 6}, -1}, {{12, 6}, -QuarterTurn}, {{12, 8}, -1}})}};
}

/// Numbers that have codes of their own, and ones at the ends of what is allowed.
Drawing numbers()
{
    return {"Numbers",
            {line(LineKind::Outline, {0, 0}, {1, 1}),
             line(LineKind::Outline, {-0.0, 1}, {0, -1}),
             line(LineKind::Outline, {1, 2}, {1, 2}),
             line(LineKind::Hidden, {1e-9, 0.1}, {1.0 / 3, 1e-300}),
             {LineKind::Outline, Circle{{0, 1}, 1}},
             {LineKind::Outline, Circle{{1, 0}, 1e9 - 1}},
             open(LineKind::Centre, {{{5, 5}, 0}, {{5, 5}, 1e-7}, {{5, 6}, 1}, {{6, 6}, 0}})}};
}

/// More objects than one block of the object map or one byte of a handle can hold.
Drawing many()
{
    Drawing drawing = {"Many lines", {}};
    for (int index = 0; index < 2000; ++index) {
        const double x = index / 10.0;
        drawing.entities.push_back(line(static_cast<LineKind>(index % 3), {x, 0}, {x, 7}));
    }
    return drawing;
}

/// A drawing in millimetres, with every kind of line.
Drawing millimetres()
{
    return {"Millimetres",
            {line(LineKind::Outline, {0, 0}, {80, 0}), line(LineKind::Hidden, {0, 5}, {80, 5}),
             line(LineKind::Centre, {-2.5, 10}, {82.5, 10}), line(LineKind::Thread, {0, 15}, {80, 15})},
            Unit::Millimetre,
            80.0 / 12};
}

Drawing longPolyline(int count)
{
    Polyline polyline;
    for (int index = 0; index < count; ++index) {
        const bool last = index + 1 == count;
        // Rises, runs and falls in turn; runs are flat arcs that bulge outwards.
        const double y = (index / 2) % 2;
        const double bulge = index % 2 == 0 && !last ? (y > 0 ? -0.5 : 0.5) : 0.0;
        polyline.vertices.push_back({{static_cast<double>(index), y}, bulge});
    }
    return {"A long polyline", {{LineKind::Outline, polyline}}};
}

/// One drawing of every family of parts in every view.
void addPartDrawings(std::vector<SampleDrawing>& samples)
{
    const PartCatalog catalog;
    std::set<std::string> names;
    for (const Part& part : catalog.parts()) {
        for (const std::string_view view : drawingViews()) {
            const std::string name = part.family + '-' + std::string(view);
            const auto drawing =
                names.count(name) == 0 ? drawPart(part, part.configurations.front(), view) : std::nullopt;
            if (drawing && names.insert(name).second)
                samples.push_back({name, *drawing});
        }
    }
}

} // namespace

Drawing plate()
{
    return {"Plate 80 × 50, Größe 2, 12 €, Пластина",
            {closed(LineKind::Outline, {{{0, 0}, 0}, {{8, 0}, 0}, {{8, 5}, 0}, {{0, 5}, 0}}),
             {LineKind::Outline, Circle{{1.5, 2.5}, 0.55}},
             {LineKind::Hidden, Circle{{6.5, 2.5}, 1}},
             line(LineKind::Hidden, {4, 0}, {4, 5}),
             line(LineKind::Centre, {-0.5, 2.5}, {8.5, 2.5}),
             line(LineKind::Centre, {1.5, 1.25}, {1.5, 3.75})}};
}

std::vector<SampleDrawing> sampleDrawings()
{
    std::vector<SampleDrawing> samples = {
        {"empty", {"An empty drawing", {}}},
        {"single-line", singleLine()},
        {"plate", plate()},
        {"arcs", arcs()},
        {"numbers", numbers()},
        {"millimetres", millimetres()},
        {"many", many()},
        {"polyline-of-256", longPolyline(256)}, // a number with a code of its own
        {"long-polyline", longPolyline(1000)}}; // as long as it may be
    addPartDrawings(samples);
    return samples;
}

} // namespace test
