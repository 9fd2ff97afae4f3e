#pragma once

#include "dev/catalog/drawings/solids/Body.h"

namespace devcatalog
{

class Ball final : public Body
{
public:
    Ball(const Vector3& centre, double radius);

    void appendCurves(std::vector<Curve>& curves, const Vector3& toward) const override;
    void appendFaces(std::vector<Face>& faces, const Vector3& toward) const override;

private:
    Vector3 m_centre;
    double m_radius;
};

} // namespace devcatalog
