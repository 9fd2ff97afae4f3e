#pragma once

#include <gp_Dir.hxx>
#include <gp_Pnt.hxx>

#include <vector>

namespace devcatalog
{

/// A coil of wire around the z axis, its first and last turns closed. It is no shape of the kernel, which
/// takes seconds to find out what the turns hide of one another.
struct Coil {
    std::vector<gp_Pnt> centreLine; ///< A hundred points and more to a turn.
    double meanRadius = 0.0;
    double wireRadius = 0.0;

    /// @return the wire's direction at a point of the centre line.
    gp_Dir direction(std::size_t index) const;
};

/// @return a coil from height 0 up.
Coil makeCoil(double meanRadius, double wireRadius, double turns, double height);

/// @return what can be seen of the wire's outlines by a parallel projection.
/// @param toward from the coil to the viewer.
std::vector<std::vector<gp_Pnt>> visibleOutlines(const Coil& coil, const gp_Dir& toward);

} // namespace devcatalog
