#pragma once

#include "dev/dwg/Drawing.h"

#include <vector>

namespace devcatalog
{

/// Closed outlines in a plane, made of lines and arcs, counter-clockwise unless said otherwise.
using Profile = dwg::Polyline;

Profile circle(const dwg::Point2& centre, double radius);
Profile rectangle(const dwg::Point2& lowerLeft, const dwg::Point2& upperRight);
Profile roundedRectangle(const dwg::Point2& lowerLeft, const dwg::Point2& upperRight, double radius);

/// @param phase angle of the first corner, in radians.
Profile regularPolygon(int corners, double circumradius, double phase);

/// A slot with round ends, centred, along the x axis.
Profile slot(const dwg::Point2& centre, double length, double width);

Profile polygon(const std::vector<dwg::Point2>& corners);

/// An open outline, for a surface of revolution without end faces.
Profile openOutline(const std::vector<dwg::Point2>& corners);

/// @return the profile with its direction turned around.
Profile reversed(const Profile& profile);

/// @return the bulge of the arc from one point over another to a third.
double bulgeThrough(const dwg::Point2& from, const dwg::Point2& over, const dwg::Point2& to);

/// @return about twice the enclosed area, negative for a clockwise profile.
double signedArea(const Profile& profile);

/// One line or arc of a profile.
struct ProfileSegment {
    dwg::Point2 from;
    dwg::Point2 to;
    double bulge = 0.0;

    bool isArc() const;
    /// For arcs: centre, radius, and the angle where the arc begins; its sweep is negative when clockwise.
    dwg::Point2 centre() const;
    double radius() const;
    double startAngle() const;
    double sweep() const;
    /// @return the unit direction of travel at the segment's start or end.
    dwg::Point2 startDirection() const;
    dwg::Point2 endDirection() const;
};

/// @return the segments in order; of a closed profile also the one back to the start.
std::vector<ProfileSegment> segmentsOf(const Profile& profile);

/// @return whether the outline bends where one segment follows the other, so that there is an edge.
bool bendsBetween(const ProfileSegment& before, const ProfileSegment& after);

/// Replaces arcs by straight pieces that stay inside the material, which lies to the left of the direction of
/// travel.
/// @return the points from the segment's start up to, but without, its end.
std::vector<dwg::Point2> facets(const ProfileSegment& segment);

/// @return the facets of a whole closed profile.
std::vector<dwg::Point2> facets(const Profile& profile);

} // namespace devcatalog
