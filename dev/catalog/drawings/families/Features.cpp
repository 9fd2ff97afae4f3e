#include "dev/catalog/drawings/families/Features.h"

#include "dev/catalog/drawings/solids/Shapes.h"

#include <algorithm>

namespace devcatalog
{

TopoDS_Shape hole(Solid& solid, const gp_Pnt& from, const gp_Pnt& to, double radius)
{
    solid.axes.push_back({from, to, radius});
    return cylinder(from, to, radius);
}

double threadRootRadius(double diameter, double pitch)
{
    return (diameter - 1.2269 * pitch) / 2;
}

TopoDS_Shape threadedShank(Solid& solid, const gp_Ax2& frame, double diameter, double pitch, double length,
                           double threadLength)
{
    const double radius = diameter / 2;
    const double root = threadRootRadius(diameter, pitch);
    const double threaded = std::min(threadLength, length - 2 * pitch);
    solid.threads.push_back({false, raised(frame, length - threaded), radius, root, threaded, pitch});
    return turned(frame, {{radius, 0}, {radius, length - (radius - root)}, {root, length}});
}

TopoDS_Shape threadedBore(Solid& solid, const gp_Ax2& frame, double diameter, double pitch, double length)
{
    const double bore = (diameter - 1.0825 * pitch) / 2;
    solid.threads.push_back({true, frame, diameter / 2, bore, length, pitch});
    return cylinder(frame, bore, length);
}

} // namespace devcatalog
