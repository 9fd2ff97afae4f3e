#pragma once

#include "dev/catalog/drawings/solids/Body.h"
#include "dev/catalog/drawings/solids/Profile.h"

namespace devcatalog
{

/// A profile in a frame's xy plane, drawn out along its z axis.
class Extrusion final : public Body
{
public:
    /// A hole along the z axis, between two heights; one that starts at 0 and ends at the body's height goes
    /// through.
    struct Hole {
        Profile outline;
        double from = 0.0;
        double to = 0.0;
        /// Whether there is an edge at either end; there is none where the hole goes on in another body.
        bool edgeAtFrom = true;
        bool edgeAtTo = true;
    };

    Extrusion(const Frame& frame, const Profile& outline, double height, const std::vector<Hole>& holes = {});

    /// Opens every flat wall that a straight round bore meets at a right angle. The bore's own wall is
    /// another body's.
    void pierce(const Vector3& from, const Vector3& to, double radius);

    void appendCurves(std::vector<Curve>& curves, const Vector3& toward) const override;
    void appendFaces(std::vector<Face>& faces, const Vector3& toward) const override;

private:
    void addCaps();
    void addStep(const Hole& hole, double z, double direction);
    void addCap(const std::vector<Profile>& loops, double z, double direction);
    void addWalls(const Hole& loop);
    void appendEdges(std::vector<Curve>& curves, const Hole& loop) const;
    void appendOutlines(std::vector<Curve>& curves, const Hole& loop, double viewAngle) const;

    Frame m_frame;
    Hole m_outline;
    std::vector<Hole> m_holes; ///< Clockwise.
    std::vector<Face> m_caps;
    std::vector<Face> m_flatWalls;
    std::vector<Face> m_curvedWalls;
};

} // namespace devcatalog
