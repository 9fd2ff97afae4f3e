#pragma once

#include "dev/catalog/drawings/solids/Body.h"
#include "dev/catalog/drawings/solids/Profile.h"

namespace devcatalog
{

/// An outline turned around a frame's z axis: x of the outline is the radius, y the height along the axis.
/// The material lies to the left of the outline's direction; an open outline makes a surface without ends.
class Revolution final : public Body
{
public:
    Revolution(const Frame& frame, const Profile& outline);

    void appendCurves(std::vector<Curve>& curves, const Vector3& toward) const override;
    void appendFaces(std::vector<Face>& faces, const Vector3& toward) const override;

private:
    void appendEdges(std::vector<Curve>& curves) const;
    void appendOutlines(std::vector<Curve>& curves, const ProfileSegment& segment,
                        const Vector3& toward) const;
    void appendFaceEdgeOn(std::vector<Curve>& curves, const ProfileSegment& segment) const;
    void appendOutlinesAlongAxis(std::vector<Curve>& curves, const ProfileSegment& segment) const;
    void addFaces(const dwg::Point2& from, const dwg::Point2& to);
    std::vector<Vector3> ring(const dwg::Point2& point, bool inside) const;

    Frame m_frame;
    std::vector<ProfileSegment> m_segments;
    bool m_closed;
    std::vector<Face> m_faces;
};

} // namespace devcatalog
