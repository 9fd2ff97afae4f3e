#pragma once

#include "dev/catalog/drawings/solids/Solid.h"
#include "dev/catalog/drawings/views/Camera.h"

#include <IntCurvesFace_ShapeIntersector.hxx>

#include <functional>
#include <vector>

namespace devcatalog
{

/// @return the bodies' shapes as a camera sees them, in the order of the bodies.
std::vector<TopoDS_Shape> shapesSeen(const Solid& solid, const Camera& camera);

/// Tells whether a part's bodies lie between a point and the viewer.
class Sight
{
public:
    Sight(const Solid& solid, const Camera& camera);

    /// @param beginning distance in millimetres within which nothing counts, so that no point is hidden by
    /// the surface it lies on.
    bool isFree(const gp_Pnt& point, double beginning = 1e-3);

    /// A piece of a line, by its parameter, that is wholly visible or wholly hidden.
    struct Piece {
        double from = 0.0;
        double to = 0.0;
        bool visible = false;
    };

    /// Splits a line where it comes into sight and goes out of it.
    /// @param place gives the line's point, or one in front of it, at a parameter.
    /// @param steps number of places to look at besides the ends; what changes twice in between goes unseen.
    std::vector<Piece> split(double from, double to, const std::function<gp_Pnt(double)>& place, int steps,
                             double beginning = 1e-3);

private:
    gp_Dir m_toward;
    IntCurvesFace_ShapeIntersector m_intersector;
};

} // namespace devcatalog
