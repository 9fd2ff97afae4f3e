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

/// The bulge of an arc from one point through another to a third.
double bulgeThrough(const Corner& from, const Corner& middle, const Corner& to)
{
    const double before = std::atan2(middle.y - from.y, middle.x - from.x);
    const double after = std::atan2(to.y - middle.y, to.x - middle.x);
    return std::tan(std::remainder(after - before, 2 * Pi) / 2);
}

/// The right flank of a tooth around the x axis, from the root circle to the tip. A fillet's centre lies on
/// a curve beside the flank: beside an involute that is an involute of the same base circle, with a string
/// longer by the fillet's radius; beside the radius that goes on below the base circle it is a line.
Outline rightFlank(double module, int teeth)
{
    const double pitch = module * teeth / 2;
    const double base = pitch * std::cos(PressureAngle);
    const double angleAtBase = Pi / (2 * teeth) + involute(PressureAngle);
    const auto angleAt = [=](double radius) {
        return angleAtBase - involute(std::acos(std::min(1.0, base / radius)));
    };
    const auto at = [](double radius, double angle) -> Corner {
        return {radius * std::cos(angle), -radius * std::sin(angle)};
    };
    const double fillet = 0.38 * module;
    const double root = pitch - 1.25 * module;
    const double centre = root + fillet;
    const double string = std::sqrt(std::max(0.0, centre * centre - base * base)) - fillet;
    const bool straight = string <= 0;
    const double filletTop =
        straight ? std::sqrt(centre * centre - fillet * fillet) : std::hypot(base, string);
    const double filletBottom = angleAtBase + (straight ? std::asin(fillet / centre)
                                                        : fillet / base - involute(std::acos(base / centre)));
    Outline flank{at(root, filletBottom), at(filletTop, angleAt(filletTop))};
    const double chord = std::hypot(flank[1].x - flank[0].x, flank[1].y - flank[0].y);
    flank[0].bulge = -std::tan(std::asin(chord / 2 / fillet) / 2);
    if (straight)
        flank.push_back(at(base, angleAtBase));
    const double begin = std::max(base, filletTop);
    const double tip = pitch + module;
    const double middle = (begin + tip) / 2;
    flank.push_back(at(tip, angleAt(tip)));
    flank.end()[-2].bulge = bulgeThrough(flank.end()[-2], at(middle, angleAt(middle)), flank.back());
    flank.back().bulge = std::tan(angleAt(tip) / 2);
    return flank;
}

/// Appends the left flank, and the arc of the root circle up to the next tooth.
Outline toothOf(double module, int teeth)
{
    const Outline flank = rightFlank(module, teeth);
    const double rootSweep = 2 * (Pi / teeth + std::atan2(flank[0].y, flank[0].x));
    Outline tooth = flank;
    for (std::size_t i = flank.size(); i-- > 0;)
        tooth.push_back({flank[i].x, -flank[i].y, i > 0 ? flank[i - 1].bulge : std::tan(rootSweep / 4)});
    return tooth;
}

} // namespace

Outline toothOutline(double module, int teeth)
{
    const Outline tooth = toothOf(module, teeth);
    Outline outline;
    for (int i = 0; i < teeth; ++i) {
        const double turn = Pi / 2 + 2 * Pi * i / teeth;
        for (const auto& [x, y, bulge] : tooth)
            outline.push_back(
                {x * std::cos(turn) - y * std::sin(turn), x * std::sin(turn) + y * std::cos(turn), bulge});
    }
    return outline;
}

} // namespace devcatalog
