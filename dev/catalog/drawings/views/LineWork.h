#pragma once

#include "dev/catalog/drawings/views/Camera.h"
#include "dev/dwg/Drawing.h"

#include <Adaptor3d_Curve.hxx>
#include <Bnd_Box2d.hxx>
#include <Intrv_Intervals.hxx>
#include <gp_Circ.hxx>
#include <gp_Lin2d.hxx>

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
    void addLine(dwg::LineKind kind, const gp_Pnt& from, const gp_Pnt& to)
    {
        addSegment(kind, m_camera.project(from), m_camera.project(to));
    }
    /// @param from, to angles in radians, the second one larger.
    void addCircle(dwg::LineKind kind, const gp_Circ& circle, double from, double to);
    void addPath(dwg::LineKind kind, const std::vector<gp_Pnt>& points);

    /// @return the entities, in millimetres.
    std::vector<dwg::Entity> entities() const;

private:
    using Kinds = std::array<Intrv_Intervals, 4>; ///< Indexed by LineKind.

    struct LineGroup {
        gp_Lin2d line;
        Kinds parts;
    };

    /// Circles that cover one another as they are seen.
    struct CircleGroup {
        gp_Circ circle;
        Kinds parts; ///< Angles from 0 to 2 pi.
    };

    /// A free curve.
    struct Path {
        dwg::LineKind kind;
        std::vector<gp_Pnt2d> points;
        Bnd_Box2d box;

        bool runsThrough(const gp_Pnt2d& point) const;
    };

    void addSegment(dwg::LineKind kind, const gp_Pnt2d& from, const gp_Pnt2d& to);
    void addCircleSeenFromTheSide(dwg::LineKind kind, const gp_Circ& circle, double from, double to);
    CircleGroup& groupOf(const gp_Circ& circle);
    dwg::Polyline arc(const gp_Circ& circle, double from, double to) const;
    void appendLines(std::vector<dwg::Polyline>& pieces, dwg::LineKind kind) const;
    void appendCircle(std::vector<dwg::Entity>& entities, std::vector<dwg::Polyline>& pieces,
                      const CircleGroup& group, dwg::LineKind kind) const;
    void appendPaths(std::vector<dwg::Polyline>& pieces, dwg::LineKind kind) const;

    Camera m_camera;
    std::vector<LineGroup> m_lines;
    std::vector<CircleGroup> m_circles;
    std::vector<Path> m_paths;
};

} // namespace devcatalog
