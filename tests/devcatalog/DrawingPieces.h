#pragma once

#include "devcatalog/drawings/Drawing.h"

#include <QString>

#include <vector>

namespace test
{

/// A straight line or an arc of a drawing, also one that is part of a polyline.
struct DrawingPiece {
    devcatalog::LineKind kind;
    devcatalog::Point2 from;
    devcatalog::Point2 to;
    double bulge = 0.0;

    bool isHorizontal() const;
    bool isVertical() const;
    double length() const; ///< Of the chord.
    devcatalog::Point2 middle() const;
    /// A quick check; where it says no, distanceTo is beyond the tolerance.
    bool mayReach(const devcatalog::Point2& point, double tolerance) const;
    double distanceTo(const devcatalog::Point2& point) const;
    QString toString() const;
};

/// Takes a drawing's lines and polylines apart; circles are left out.
std::vector<DrawingPiece> piecesOf(const devcatalog::Drawing& drawing);

/// A drawing's circles of one kind.
std::vector<devcatalog::Circle> circlesOf(const devcatalog::Drawing& drawing, devcatalog::LineKind kind);

/// The entities that are not centre lines.
std::vector<devcatalog::Entity> edgesOf(const devcatalog::Drawing& drawing);

/// @return whether two straight pieces cover one another for some length.
bool overlap(const DrawingPiece& a, const DrawingPiece& b);

} // namespace test
