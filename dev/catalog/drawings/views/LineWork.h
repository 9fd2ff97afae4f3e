#pragma once

#include "dev/catalog/drawings/views/Camera.h"
#include "dev/catalog/drawings/views/IntervalSet.h"

#include <Adaptor3d_Curve.hxx>
#include <gp_Circ.hxx>

#include <array>
#include <vector>

namespace devcatalog
{

/// Turns what a camera sees of curves into the entities of a drawing: each place is drawn once, outlines go
/// before hidden edges, the circle of a thread's end goes before the edge in its place, and what follows one
/// another becomes one polyline. Free curves become polylines within a hundredth of a millimetre.
class LineWork
{
public:
    explicit LineWork(const Camera& camera) : m_camera(camera) {}

    /// @param from, to parameters on the curve.
    void add(dwg::LineKind kind, const Adaptor3d_Curve& curve, double from, double to);
    void addLine(dwg::LineKind kind, const gp_Pnt& from, const gp_Pnt& to);
    /// @param from, to angles in radians, the second one larger.
    void addCircle(dwg::LineKind kind, const gp_Circ& circle, double from, double to);
    void addPath(dwg::LineKind kind, const std::vector<gp_Pnt>& points);

    /// @return the entities, in millimetres.
    std::vector<dwg::Entity> entities() const;

private:
    using Kinds = std::array<IntervalSet, 4>; ///< Indexed by LineKind.

    struct LineGroup {
        dwg::Point2 origin;
        dwg::Point2 direction;
        Kinds parts;
    };

    /// Circles that cover one another as they are seen.
    struct CircleGroup {
        gp_Circ circle;
        Kinds parts; ///< Angles from 0 to 2 pi.
    };

    struct Path {
        dwg::LineKind kind;
        std::vector<dwg::PolylineVertex> vertices;
    };

    void addSegment(dwg::LineKind kind, const dwg::Point2& from, const dwg::Point2& to);
    void addCircleSeenFromTheSide(dwg::LineKind kind, const gp_Circ& circle, double from, double to);
    bool covers(const gp_Circ& a, const gp_Circ& b) const;
    std::vector<Interval> partsToDraw(const Kinds& parts, dwg::LineKind kind, double tolerance) const;
    std::vector<Path> pathsToDraw(dwg::LineKind kind) const;
    std::vector<dwg::PolylineVertex> arc(const gp_Circ& circle, const Interval& part) const;
    void appendCircleParts(std::vector<dwg::Entity>& entities, std::vector<Path>& pieces,
                           const CircleGroup& group, dwg::LineKind kind) const;
    void appendChains(std::vector<dwg::Entity>& entities, std::vector<Path> pieces) const;

    Camera m_camera;
    std::vector<LineGroup> m_lines;
    std::vector<CircleGroup> m_circles;
    std::vector<Path> m_paths;
};

} // namespace devcatalog
