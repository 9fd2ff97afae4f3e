#pragma once

#include "dev/catalog/drawings/solids/Body.h"

#include <memory>
#include <utility>
#include <vector>

namespace devcatalog
{

/// What a body is made of; pictures are coloured by it.
enum class Material { Steel, Zinc, Aluminium, Brass, Bronze, DarkPlastic, LightPlastic, ColouredPlastic };

/// The axis of something round, drawn as a centre line, or as a cross where it is seen end on.
struct Axis {
    Vector3 from;
    Vector3 to;
    double radius = 0.0; ///< Of what is round; the cross reaches a little farther.
};

/// A pitch circle around the frame's z axis, or with a length the pitch cylinder; drawn in the manner of
/// centre lines.
struct PitchCircle {
    Frame frame;
    double radius = 0.0;
    double length = 0.0;
};

/// A body within a part.
struct Member {
    std::unique_ptr<Body> body;
    Material material = Material::Steel;
    bool hiddenEdges = true; ///< Whether those of its edges that cannot be seen are worth drawing.
};

/// A side of a part to look at.
enum class Side { Front, Top, Right, Left };

/// A part in space: bodies that touch but do not overlap, except where the overlap is out of sight.
struct Solid {
    std::vector<Member> members;
    std::vector<Axis> axes;
    std::vector<PitchCircle> pitchCircles;
    Side telling = Side::Front; ///< The side that tells most about the part.

    /// Adds a body made from the arguments.
    /// @return the body, owned by the solid.
    template <typename BodyType, typename... Arguments>
    BodyType& add(Material material, Arguments&&... arguments)
    {
        auto body = std::make_unique<BodyType>(std::forward<Arguments>(arguments)...);
        BodyType& added = *body;
        members.push_back({std::move(body), material, true});
        return added;
    }

    /// Adds a body whose unseen edges are left out.
    template <typename BodyType, typename... Arguments>
    BodyType& addWithoutHiddenEdges(Material material, Arguments&&... arguments)
    {
        BodyType& added = add<BodyType>(material, std::forward<Arguments>(arguments)...);
        members.back().hiddenEdges = false;
        return added;
    }
};

} // namespace devcatalog
