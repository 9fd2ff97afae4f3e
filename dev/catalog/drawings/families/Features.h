#pragma once

#include "dev/catalog/drawings/solids/Solid.h"

namespace devcatalog
{

/// @return what to cut from a body for a hole between two points, whose centre line is added.
TopoDS_Shape hole(Solid& solid, const gp_Pnt& from, const gp_Pnt& to, double radius);

/// @return the radius at the root of an external metric thread (ISO 68-1, whose flanks and crests ASME B1.1
/// shares).
double threadRootRadius(double diameter, double pitch);

/// @return a shank from a frame's origin along its z axis, with a chamfered end that is threaded.
/// @param threadLength no more of it is threaded than leaves two turns' width at the start.
TopoDS_Shape threadedShank(Solid& solid, const gp_Ax2& frame, double diameter, double pitch, double length,
                           double threadLength);

/// @return the bore to cut from a body for an internal thread from a frame's origin along its z axis.
TopoDS_Shape threadedBore(Solid& solid, const gp_Ax2& frame, double diameter, double pitch, double length);

} // namespace devcatalog
