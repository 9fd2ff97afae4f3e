#include "dev/catalog/drawings/solids/ToothedWheel.h"

#include <algorithm>
#include <cmath>

namespace devcatalog
{

namespace
{

const double pressureAngle = 20 * pi / 180;

double involute(double angle)
{
    return std::tan(angle) - angle;
}

/// The outline of all teeth, with an arc for each flank's involute.
Profile toothOutline(double module, int teeth)
{
    const double pitchRadius = module * teeth / 2;
    const double baseRadius = pitchRadius * std::cos(pressureAngle);
    const auto halfThickness = [=](double radius) {
        const double angle = std::acos(std::min(1.0, baseRadius / radius));
        return pi / (2 * teeth) + involute(pressureAngle) - involute(angle);
    };
    const auto at = [](double radius, double angle) {
        return dwg::Point2{radius * std::cos(angle), radius * std::sin(angle)};
    };
    const double tip = pitchRadius + module;
    const double root = pitchRadius - 1.25 * module;
    const double atTip = halfThickness(tip);
    const double atPitch = halfThickness(pitchRadius);
    const double atRoot = halfThickness(root);
    Profile outline;
    outline.closed = true;
    for (int i = 0; i < teeth; ++i) {
        // A tooth stands upright.
        const double middle = pi / 2 + 2 * pi * i / teeth;
        const dwg::Point2 corners[] = {at(root, middle - atRoot), at(tip, middle - atTip),
                                       at(tip, middle + atTip), at(root, middle + atRoot)};
        outline.vertices.push_back(
            {corners[0], bulgeThrough(corners[0], at(pitchRadius, middle - atPitch), corners[1])});
        outline.vertices.push_back({corners[1], std::tan(atTip / 2)});
        outline.vertices.push_back(
            {corners[2], bulgeThrough(corners[2], at(pitchRadius, middle + atPitch), corners[3])});
        outline.vertices.push_back({corners[3], std::tan((pi / teeth - atRoot) / 2)});
    }
    return outline;
}

} // namespace

ToothedWheel::ToothedWheel(const Frame& frame, double module, int teeth, double width,
                           const Extrusion::Hole& bore)
    : m_axis(frame.z),
      m_teeth(frame, toothOutline(module, teeth), width, {bore}),
      m_cylinder(frame, circle({}, module * (teeth + 2) / 2), width, {bore})
{
}

const Extrusion& ToothedWheel::shown(const Vector3& toward) const
{
    return std::abs(dot(toward, m_axis)) < 1e-9 ? m_cylinder : m_teeth;
}

void ToothedWheel::appendCurves(std::vector<Curve>& curves, const Vector3& toward) const
{
    shown(toward).appendCurves(curves, toward);
}

void ToothedWheel::appendFaces(std::vector<Face>& faces, const Vector3& toward) const
{
    shown(toward).appendFaces(faces, toward);
}

} // namespace devcatalog
