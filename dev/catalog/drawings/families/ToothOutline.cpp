#include "dev/catalog/drawings/families/ToothOutline.h"

#include <algorithm>
#include <cmath>

namespace devcatalog
{

namespace
{

const double PressureAngle = 20 * Pi / 180;

double involute(double angle)
{
    return std::tan(angle) - angle;
}

/// A place by its distance from the gear's axis and its angle from the middle of a tooth.
struct Polar {
    double radius = 0.0;
    double angle = 0.0;
};

dwg::Point2 pointAt(const Polar& polar, double toothAngle, double side)
{
    const double angle = toothAngle + side * polar.angle;
    return {polar.radius * std::cos(angle), polar.radius * std::sin(angle)};
}

/// One flank of a tooth.
class Flank
{
public:
    Flank(double module, int teeth)
        : tip(module * teeth / 2 + module),
          root(module * teeth / 2 - 1.25 * module),
          fillet(0.38 * module),
          m_baseRadius(module * teeth / 2 * std::cos(PressureAngle)),
          m_angleAtBase(Pi / (2 * teeth) + involute(PressureAngle))
    {
        findFillet();
    }

    /// @return the place on the involute, or on the radius that goes on below it.
    Polar at(double radius) const
    {
        const double angle = std::acos(std::min(1.0, m_baseRadius / radius));
        return {radius, m_angleAtBase - involute(angle)};
    }

    /// @return where the fillet ends and the involute begins, and where a straight piece in between does.
    double involuteBegin() const { return std::max(m_baseRadius, filletTop.radius); }
    bool hasStraightPiece() const { return filletTop.radius < m_baseRadius; }

    const double tip;
    const double root;
    const double fillet;
    Polar filletTop;         ///< Where the fillet leaves the flank.
    double filletBottom = 0; ///< The angle at which it reaches the root circle.

private:
    /// The fillet's centre lies on a curve beside the flank: beside an involute that is an involute of the
    /// same base circle, with a string longer by the fillet's radius; beside a radius it is a line.
    void findFillet()
    {
        const double centre = root + fillet;
        const double string =
            std::sqrt(std::max(0.0, centre * centre - m_baseRadius * m_baseRadius)) - fillet;
        if (string > 0) {
            filletTop = at(std::hypot(m_baseRadius, string));
            filletBottom = m_angleAtBase + fillet / m_baseRadius - involute(std::acos(m_baseRadius / centre));
        } else {
            filletTop = {std::sqrt(centre * centre - fillet * fillet), m_angleAtBase};
            filletBottom = m_angleAtBase + std::asin(fillet / centre);
        }
    }

    double m_baseRadius;
    double m_angleAtBase;
};

/// The bulge of an arc from one point through another to a third.
double bulgeThrough(const dwg::Point2& from, const dwg::Point2& middle, const dwg::Point2& to)
{
    const double before = std::atan2(middle.y - from.y, middle.x - from.x);
    const double after = std::atan2(to.y - middle.y, to.x - middle.x);
    return std::tan(std::remainder(after - before, 2 * Pi) / 2);
}

/// Appends an arc of the fillet's radius that turns from the root circle into a flank or back.
void appendArc(Outline& outline, const dwg::Point2& from, const dwg::Point2& to, double radius)
{
    const double half = std::hypot(to.x - from.x, to.y - from.y) / 2;
    outline.push_back({from, -std::tan(std::asin(half / radius) / 2)});
}

} // namespace

Outline toothOutline(double module, int teeth)
{
    const Flank flank(module, teeth);
    const Polar bottom{flank.root, flank.filletBottom};
    const Polar begin = flank.at(flank.involuteBegin());
    const Polar middle = flank.at((flank.involuteBegin() + flank.tip) / 2);
    const Polar tip = flank.at(flank.tip);
    Outline outline;
    for (int i = 0; i < teeth; ++i) {
        const double tooth = Pi / 2 + 2 * Pi * i / teeth;
        const auto place = [tooth](const Polar& polar, double side) { return pointAt(polar, tooth, side); };
        appendArc(outline, place(bottom, -1), place(flank.filletTop, -1), flank.fillet);
        if (flank.hasStraightPiece())
            outline.push_back({place(flank.filletTop, -1), 0});
        outline.push_back(
            {place(begin, -1), bulgeThrough(place(begin, -1), place(middle, -1), place(tip, -1))});
        outline.push_back({place(tip, -1), std::tan(tip.angle / 2)});
        outline.push_back({place(tip, 1), bulgeThrough(place(tip, 1), place(middle, 1), place(begin, 1))});
        if (flank.hasStraightPiece())
            outline.push_back({place(begin, 1), 0});
        appendArc(outline, place(flank.filletTop, 1), place(bottom, 1), flank.fillet);
        outline.push_back({place(bottom, 1), std::tan((Pi / teeth - bottom.angle) / 2)});
    }
    return outline;
}

} // namespace devcatalog
