#pragma once

#include "dev/catalog/drawings/solids/Body.h"

namespace devcatalog
{

/// The hexagon of a bolt head or nut, along a frame's z axis with a corner on its x axis. Its corners are
/// turned off by a cone of 30 degrees, which leaves an arc on each flat.
class HexagonPrism final : public Body
{
public:
    enum class Chamfer { Top, BothEnds };

    /// @param bore radius of an opening in both ends, 0 for none; the bore's wall is another body's.
    HexagonPrism(const Frame& frame, double acrossFlats, double height, Chamfer chamfer, double bore = 0);

    void appendCurves(std::vector<Curve>& curves, const Vector3& toward) const override;
    void appendFaces(std::vector<Face>& faces, const Vector3& toward) const override;

private:
    /// One end, seen as the top: the lower end's frame points down.
    struct End {
        Frame frame; ///< Its origin is in the middle of the end face.
        bool chamfered;
    };

    double boundary(double angle) const;
    double drop(const End& end, double angle) const;
    Vector3 onBoundary(const End& end, double angle) const;
    void appendEndCurves(std::vector<Curve>& curves, const End& end, const Vector3& toward) const;
    void appendEndFaces(std::vector<Face>& faces, const End& end) const;

    double m_acrossFlats;
    double m_bore;
    double m_chamferRadius;
    End m_top;
    End m_bottom;
};

} // namespace devcatalog
