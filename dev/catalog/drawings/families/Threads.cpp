#include "dev/catalog/drawings/families/Threads.h"

#include "dev/catalog/drawings/solids/Shapes.h"

#include <algorithm>

namespace devcatalog
{

double threadRootRadius(double diameter, double pitch)
{
    return (diameter - 1.2269 * pitch) / 2;
}

double threadBoreRadius(double diameter, double pitch)
{
    return (diameter - 1.0825 * pitch) / 2;
}

TopoDS_Shape threadedShank(Solid& solid, const gp_Ax2& frame, double diameter, double pitch, double length,
                           double threadLength)
{
    const double radius = diameter / 2;
    const double root = threadRootRadius(diameter, pitch);
    const double threaded = std::min(threadLength, length - 2 * pitch);
    solid.threads.push_back(
        {Thread::Kind::External, raised(frame, length - threaded), radius, root, threaded, pitch});
    return revolved(
        frame,
        polygon({{0, 0}, {radius, 0}, {radius, length - (radius - root)}, {root, length}, {0, length}}));
}

TopoDS_Shape threadedBore(Solid& solid, const gp_Ax2& frame, double diameter, double pitch, double length)
{
    const double bore = threadBoreRadius(diameter, pitch);
    solid.threads.push_back({Thread::Kind::Internal, frame, diameter / 2, bore, length, pitch});
    return cylinder(frame, bore, length);
}

} // namespace devcatalog
