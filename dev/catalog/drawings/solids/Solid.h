#pragma once

#include "dev/catalog/drawings/solids/Coil.h"

#include <TopoDS_Shape.hxx>
#include <gp_Ax2.hxx>

#include <optional>
#include <vector>

namespace devcatalog
{

/// What a body is made of, by its colour in pictures, 0xRRGGBB.
enum class Material : unsigned {
    Steel = 0xb4bcc6,
    Zinc = 0xc9cdc4,
    Aluminium = 0xd4d9de,
    Brass = 0xd8b462,
    DarkPlastic = 0x7c8691,
    LightPlastic = 0xddddd6,
    ColouredPlastic = 0xe08a4a,
};

/// A piece of a part, of one material.
struct Body {
    Material material = Material::Steel;
    TopoDS_Shape shape;
    bool hiddenEdges = true; ///< Whether those of its edges that cannot be seen are worth drawing.
    /// What drawings show instead where it is seen at a right angle to the y axis; null when that is the
    /// shape.
    TopoDS_Shape fromTheSide = {};
};

/// A thread around the frame's z axis. Bodies have the cylinder it is cut into, not its turns.
struct Thread {
    bool internal = false;
    gp_Ax2 frame = {};
    double radius = 0.0;     ///< The larger, nominal one.
    double coreRadius = 0.0; ///< The smaller one: of an external thread's root, of an internal one's bore.
    double length = 0.0;
    double pitch = 0.0;

    /// @return the radius of the thin line that stands for it.
    double lineRadius() const { return internal ? radius : coreRadius; }
};

/// The axis of something round, drawn as a centre line, or as a cross where it is seen end on.
struct Axis {
    gp_Pnt from;
    gp_Pnt to;
    double radius = 0.0; ///< Of what is round; the cross reaches a little farther.
};

/// A circle of holes, balls or teeth around the frame's z axis, or with a length a cylinder; drawn in the
/// manner of centre lines.
struct PitchCircle {
    gp_Ax2 frame = {};
    double radius = 0.0;
    double length = 0.0;
};

/// A side of a part to look at.
enum class Side { Front, Top, Right, Left };

/// A part in space, in millimetres: bodies that touch but do not overlap, except where the overlap is out of
/// sight.
struct Solid {
    std::vector<Body> bodies;
    std::optional<Coil> coil;
    std::vector<Thread> threads;
    std::vector<Axis> axes;
    std::vector<PitchCircle> pitchCircles;
    Side telling = Side::Front; ///< The side that tells most about the part.

    void add(Material material, const TopoDS_Shape& shape) { bodies.push_back({material, shape}); }
};

} // namespace devcatalog
