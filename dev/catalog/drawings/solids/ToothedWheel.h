#pragma once

#include "dev/catalog/drawings/solids/Extrusion.h"

namespace devcatalog
{

/// The rim of a spur gear around a frame's z axis. Seen from the side it is drawn as the cylinder of its
/// tips, as is usual in drawings.
class ToothedWheel final : public Body
{
public:
    /// @param module pitch diameter divided by the number of teeth, in millimetres.
    ToothedWheel(const Frame& frame, double module, int teeth, double width, const Extrusion::Hole& bore);

    void appendCurves(std::vector<Curve>& curves, const Vector3& toward) const override;
    void appendFaces(std::vector<Face>& faces, const Vector3& toward) const override;

private:
    const Extrusion& shown(const Vector3& toward) const;

    Vector3 m_axis;
    Extrusion m_teeth;
    Extrusion m_cylinder;
};

} // namespace devcatalog
