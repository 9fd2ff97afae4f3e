#pragma once

#include <string>
#include <variant>
#include <vector>

namespace dwg
{

/// A point or direction in the drawing plane, in the drawing's unit.
struct Point2 {
    double x = 0.0;
    double y = 0.0;
};

struct LineSegment {
    Point2 from;
    Point2 to;
};

struct Circle {
    Point2 centre;
    double radius = 0.0;
};

/// A vertex of a polyline; the bulge belongs to the segment that starts here: tan(sweep / 4), positive
/// counter-clockwise, 0 for a straight one.
struct PolylineVertex {
    Point2 point;
    double bulge = 0.0;
};

struct Polyline {
    std::vector<PolylineVertex> vertices;
    bool closed = false;
};

using Shape = std::variant<LineSegment, Circle, Polyline>;

/// What a line of the drawing stands for; each kind has a layer and a linetype of its own.
enum class LineKind { Outline, Hidden, Centre, Thread };

struct Entity {
    LineKind kind = LineKind::Outline;
    Shape shape;
};

enum class Unit { Millimetre, Centimetre };

/// A 2D drawing, before it becomes a file.
struct Drawing {
    std::string title;
    std::vector<Entity> entities;
    Unit unit = Unit::Centimetre;
    /// Factor of the dashes of all lines. Those of hidden edges are 0.25 units long, those of centre lines
    /// 0.75.
    double linetypeScale = 1.0;
};

} // namespace dwg
