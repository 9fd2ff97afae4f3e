#pragma once

#include "dev/dwg/Drawing.h"

#include <QString>

#include <optional>
#include <vector>

namespace test
{

/// A straight line or an arc of a drawing, also one that is part of a polyline.
struct DrawingPiece {
    dwg::LineKind kind;
    dwg::Point2 from;
    dwg::Point2 to;
    double bulge = 0.0;

    double length() const; ///< Of the chord.
    dwg::Point2 middle() const;
    /// A quick check; where it says no, distanceTo is beyond the tolerance.
    bool mayReach(const dwg::Point2& point, double tolerance) const;
    double distanceTo(const dwg::Point2& point) const;
    /// Whether straight pieces cover one another for some length, or arcs of one kind are the same.
    bool covers(const DrawingPiece& other) const;
    QString toString() const;
};

/// Takes a drawing's lines and polylines apart, all of them or those of one kind; circles are left out.
std::vector<DrawingPiece> piecesOf(const dwg::Drawing& drawing,
                                   std::optional<dwg::LineKind> kind = std::nullopt);

/// A drawing's circles of one kind.
std::vector<dwg::Circle> circlesOf(const dwg::Drawing& drawing, dwg::LineKind kind);

/// The entities that are not centre lines.
std::vector<dwg::Entity> edgesOf(const dwg::Drawing& drawing);

} // namespace test
