#pragma once

#include "dev/catalog/drawings/solids/Curve.h"
#include "dev/catalog/drawings/views/Camera.h"
#include "dev/catalog/drawings/views/IntervalSet.h"

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

    void add(dwg::LineKind kind, const Curve& curve);

    /// @return the entities, in millimetres.
    std::vector<dwg::Entity> entities() const;

private:
    using Kinds = std::array<IntervalSet, 3>; ///< Indexed by LineKind.

    struct LineGroup {
        dwg::Point2 origin;
        dwg::Point2 direction;
        Kinds parts;
    };

    struct CircleGroup {
        dwg::Point2 centre;
        double radius;
        Kinds parts; ///< Angles from 0 to 2 pi.
    };

    struct Path {
        dwg::LineKind kind;
        std::vector<dwg::PolylineVertex> vertices;
    };

    void addLine(dwg::LineKind kind, const dwg::Point2& from, const dwg::Point2& to);
    void addArc(dwg::LineKind kind, const ArcCurve& arc);
    void addPath(dwg::LineKind kind, const std::vector<dwg::Point2>& points);
    bool coincide(const dwg::Point2& a, const dwg::Point2& b) const;
    bool coincide(const Path& a, const Path& b) const;
    std::vector<Interval> partsToDraw(const Kinds& parts, dwg::LineKind kind, double tolerance) const;
    void appendCircleParts(std::vector<dwg::Entity>& entities, std::vector<Path>& pieces,
                           const CircleGroup& group, dwg::LineKind kind) const;
    void appendChains(std::vector<dwg::Entity>& entities, std::vector<Path> pieces) const;

    Camera m_camera;
    double m_tolerance;
    std::vector<LineGroup> m_lines;
    std::vector<CircleGroup> m_circles;
    std::vector<Path> m_paths;
};

} // namespace devcatalog
