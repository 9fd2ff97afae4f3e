#pragma once

#include "dev/catalog/drawings/solids/Extrusion.h"
#include "dev/catalog/drawings/solids/Solid.h"

namespace devcatalog
{

/// @return a frame with its origin in one point and its z axis toward another.
Frame frameAlong(const Vector3& from, const Vector3& to);

/// @return a bore's outline in an extrusion, with a keyway on the y axis.
Profile keyedBore(double diameter);

/// Adds the wall of a round bore between two points; what it goes through has its openings already.
void addBoreWall(Solid& solid, Material material, const Vector3& from, const Vector3& to, double radius);

/// Drills a round hole across an extrusion of the solid, through its flat walls, with a centre line.
void drill(Solid& solid, Extrusion& body, Material material, const Vector3& from, const Vector3& to,
           double radius);

/// Drills a blind hole; it begins at a flat wall and ends within the body.
void drillBlind(Solid& solid, Extrusion& body, Material material, const Vector3& mouth, const Vector3& end,
                double radius);

} // namespace devcatalog
