#pragma once

#include "devcatalog/drawings/solids/Curve.h"
#include "devcatalog/drawings/views/Camera.h"
#include "devcatalog/drawings/views/IntervalSet.h"

#include <array>
#include <vector>

namespace devcatalog
{

/// Turns what a camera sees of curves into the entities of a drawing: each place is drawn once, outlines go
/// before hidden edges, and what follows one another becomes one polyline.
class LineWork
{
public:
    /// @param tolerance distance below which things coincide.
    LineWork(const Camera& camera, double tolerance);

    void add(LineKind kind, const Curve& curve);

    /// @return the entities, in millimetres.
    std::vector<Entity> entities() const;

private:
    using Kinds = std::array<IntervalSet, 3>; ///< Indexed by LineKind.

    struct LineGroup {
        Point2 origin;
        Point2 direction;
        Kinds parts;
    };

    struct CircleGroup {
        Point2 centre;
        double radius;
        Kinds parts; ///< Angles from 0 to 2 pi.
    };

    struct Path {
        LineKind kind;
        std::vector<PolylineVertex> vertices;
    };

    void addLine(LineKind kind, const Point2& from, const Point2& to);
    void addArc(LineKind kind, const ArcCurve& arc);
    void addPath(LineKind kind, const std::vector<Point2>& points);
    bool coincide(const Point2& a, const Point2& b) const;
    bool coincide(const Path& a, const Path& b) const;
    std::vector<Interval> partsToDraw(const Kinds& parts, LineKind kind, double tolerance) const;
    void appendCircleParts(std::vector<Entity>& entities, std::vector<Path>& pieces, const CircleGroup& group,
                           LineKind kind) const;
    void appendChains(std::vector<Entity>& entities, std::vector<Path> pieces) const;

    Camera m_camera;
    double m_tolerance;
    std::vector<LineGroup> m_lines;
    std::vector<CircleGroup> m_circles;
    std::vector<Path> m_paths;
};

} // namespace devcatalog
