#pragma once

#include "dev/catalog/drawings/solids/Sweep.h"

namespace devcatalog
{

/// A coil spring around a frame's z axis, from height 0 up; its first and last turns are closed.
class Coil final : public Body
{
public:
    /// @param meanDiameter of the wire's centre line.
    Coil(const Frame& frame, double meanDiameter, double wireDiameter, double turns, double height);

    void appendCurves(std::vector<Curve>& curves, const Vector3& toward) const override;
    void appendFaces(std::vector<Face>& faces, const Vector3& toward) const override;

private:
    Frame m_frame;
    double m_meanRadius;
    double m_wireRadius;
    double m_height;
    Sweep m_wire;
};

} // namespace devcatalog
