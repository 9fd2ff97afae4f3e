#pragma once

#include <TopoDS_Shape.hxx>
#include <gp_Ax2.hxx>

#include <vector>

namespace devcatalog
{

constexpr double Pi = 3.14159265358979323846;

// Places.

/// @return a frame across the x axis, with y to its right and z up.
gp_Ax2 acrossX(double x);

/// @return a frame with its z axis toward the viewer of the front view, x to the right and z up.
gp_Ax2 towardFront(double y = 0, double z = 0);

/// @return a frame moved along its own z axis.
gp_Ax2 raised(const gp_Ax2& frame, double z);

// Closed outlines in a frame's xy plane, counter-clockwise.

struct Corner {
    double x = 0.0;
    double y = 0.0;
    double bulge = 0.0; ///< Of the edge to the next corner: tan(sweep / 4), positive counter-clockwise.
};

using Outline = std::vector<Corner>;

/// The bulge of a quarter of a circle.
extern const double QuarterTurn;

Outline circle(double radius);

Outline rectangle(double left, double bottom, double right, double top);

/// @param middle of the rectangle is the origin.
Outline roundedRectangle(double width, double height, double radius);

/// @param flats distance of opposite sides, which lie below and above.
Outline hexagon(double flats);

// Shapes made by the kernel. Each may throw Standard_Failure.

/// @param height may be negative.
TopoDS_Shape cylinder(const gp_Ax2& frame, double radius, double height);

/// @return a cylinder from one point to another.
TopoDS_Shape cylinder(const gp_Pnt& from, const gp_Pnt& to, double radius);

/// @return the outline drawn out along the frame's z axis.
/// @param hole an outline within, left open; empty for none.
TopoDS_Shape prism(const gp_Ax2& frame, const Outline& outline, double height, const Outline& hole = {});

/// @param outline x is the distance from the frame's z axis, y the height along it.
TopoDS_Shape revolved(const gp_Ax2& frame, const Outline& outline);

/// @param profile of the outside, from bottom to top.
/// @param bore radius of the hole in the middle; 0 for none.
TopoDS_Shape turned(const gp_Ax2& frame, Outline profile, double bore = 0);

/// @return a bolt's head or a nut: a hexagonal prism whose corners are turned off at 30 degrees on the far
/// end, or on both ends; two corners lie on the frame's x axis.
TopoDS_Shape hexagonHead(const gp_Ax2& frame, double flats, double height, bool bothEnds);

/// @return a round bar along straight lines, with bends of this radius where they meet.
TopoDS_Shape bentBar(const std::vector<gp_Pnt>& corners, double bendRadius, double radius);

/// Joins shapes whose faces meet in planes, where those of the other lie within those of the shape; if the
/// other lies inside the shape, what is left is returned. It is far cheaper than cut().
/// @param planes each z axis is normal to one.
TopoDS_Shape joined(const TopoDS_Shape& shape, const TopoDS_Shape& other, const std::vector<gp_Ax2>& planes);

TopoDS_Shape cut(const TopoDS_Shape& shape, const std::vector<TopoDS_Shape>& tools);

} // namespace devcatalog
