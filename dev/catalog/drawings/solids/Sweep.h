#pragma once

#include "dev/catalog/drawings/solids/Body.h"

namespace devcatalog
{

/// A round bar or wire along a spine of lines, arcs and paths that follow one another without a bend.
class Sweep final : public Body
{
public:
    Sweep(std::vector<Curve> spine, double radius);

    void appendCurves(std::vector<Curve>& curves, const Vector3& toward) const override;
    void appendFaces(std::vector<Face>& faces, const Vector3& toward) const override;

private:
    void addFaces();
    void appendOutlineEndOn(std::vector<Curve>& curves, std::size_t index, const Vector3& toward) const;
    void appendOutline(std::vector<Curve>& curves, const Curve& piece, double side,
                       const Vector3& toward) const;
    bool turnsInward(const Vector3& tangent, const Vector3& normal, const Vector3& bend,
                     const Vector3& toward) const;
    void addEnd(const Vector3& centre, const Vector3& outward);

    std::vector<Curve> m_spine;
    double m_radius;
    std::vector<ArcCurve> m_ends;
    std::vector<Face> m_faces;
};

} // namespace devcatalog
