#pragma once

#include "dev/catalog/drawings/solids/Solid.h"

namespace devcatalog
{

/// The metric thread's profile (ISO 68-1, whose flanks and crests ASME B1.1 shares).
/// @return the radius at the root of an external thread.
double threadRootRadius(double diameter, double pitch);

/// @return the radius of the bore that an internal thread is cut into.
double threadBoreRadius(double diameter, double pitch);

/// @return a shank from a frame's origin along its z axis, with a chamfered end that is threaded.
/// @param threadLength no more of it is threaded than leaves two turns' width at the start.
TopoDS_Shape threadedShank(Solid& solid, const gp_Ax2& frame, double diameter, double pitch, double length,
                           double threadLength);

/// @return the bore to cut from a body for an internal thread from a frame's origin along its z axis.
TopoDS_Shape threadedBore(Solid& solid, const gp_Ax2& frame, double diameter, double pitch, double length);

} // namespace devcatalog
