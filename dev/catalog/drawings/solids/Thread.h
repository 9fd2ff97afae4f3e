#pragma once

#include "dev/catalog/drawings/solids/Body.h"

namespace devcatalog
{

/// The simplified picture of a thread around a frame's z axis. It has no surface: the shank's or the bore's
/// hides things.
class Thread final : public Body
{
public:
    enum class Kind { External, Internal };

    /// @param diameter the nominal (larger) one.
    Thread(const Frame& frame, Kind kind, double diameter, double pitch, double length);

    /// @return the diameter at the thread's root, which is that of the bore of an internal one.
    static double minorDiameter(double diameter, double pitch) { return diameter - 1.0825 * pitch; }

    void appendCurves(std::vector<Curve>& curves, const Vector3& toward) const override;
    void appendFaces(std::vector<Face>& faces, const Vector3& toward) const override;

private:
    void appendRootLines(std::vector<Curve>& curves, const Vector3& toward) const;
    void appendTurns(std::vector<Curve>& curves) const;

    Frame m_frame;
    Kind m_kind;
    double m_radius;
    double m_minorRadius;
    double m_pitch;
    double m_length;
};

} // namespace devcatalog
