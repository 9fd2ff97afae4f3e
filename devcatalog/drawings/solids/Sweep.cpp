#include "devcatalog/drawings/solids/Sweep.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace devcatalog
{

namespace
{

constexpr int facetsAround = 16;
constexpr double facetAngle = pi / 30;

/// A unit vector at a right angle to a direction.
Vector3 perpendicularTo(const Vector3& direction)
{
    return normalized(cross(direction, std::abs(direction.z) < 0.9 ? zAxis : xAxis));
}

bool seenEndOn(const Curve& piece, const Vector3& toward)
{
    return std::holds_alternative<LineCurve>(piece) &&
           length(cross(normalized(derivativeAt(piece, 0)), toward)) < 1e-9;
}

std::vector<Vector3> ring(const Vector3& centre, const Vector3& tangent, const Vector3& u, double radius)
{
    const Frame frame = Frame::at(centre, tangent, u);
    std::vector<Vector3> points;
    points.reserve(facetsAround);
    for (int i = 0; i < facetsAround; ++i)
        points.push_back(frame.polar(radius, 2 * pi * i / facetsAround, 0));
    return points;
}

/// The curvature of a spine at one of its samples, as a vector toward the centre of the bend.
Vector3 curvature(const Curve& piece, const std::vector<double>& samples, std::size_t i)
{
    const double before = samples[i == 0 ? 0 : i - 1];
    const double after = samples[std::min(i + 1, samples.size() - 1)];
    const Vector3 turn = normalized(derivativeAt(piece, after)) - normalized(derivativeAt(piece, before));
    return (1 / length(pointAt(piece, after) - pointAt(piece, before))) * turn;
}

/// A place along a spine where a ring of facets begins.
struct Station {
    Vector3 centre;
    Vector3 tangent;
};

/// Stations where the spine's pieces end, and wherever it has turned by the angle of a facet.
std::vector<Station> selectStations(const std::vector<Curve>& spine)
{
    std::vector<Station> stations;
    for (const Curve& piece : spine)
        for (const double t : samplesOf(piece)) {
            const Vector3 tangent = normalized(derivativeAt(piece, t));
            const bool straight =
                !stations.empty() && dot(tangent, stations.back().tangent) > std::cos(facetAngle);
            const bool again = !stations.empty() && t == 0;
            if (!again && (t == 0 || t == 1 || !straight))
                stations.push_back({pointAt(piece, t), tangent});
        }
    return stations;
}

} // namespace

Sweep::Sweep(std::vector<Curve> spine, double radius) : m_spine(std::move(spine)), m_radius(radius)
{
    addEnd(pointAt(m_spine.front(), 0), -normalized(derivativeAt(m_spine.front(), 0)));
    addEnd(pointAt(m_spine.back(), 1), normalized(derivativeAt(m_spine.back(), 1)));
    addFaces();
}

void Sweep::addEnd(const Vector3& centre, const Vector3& outward)
{
    const Frame frame = Frame::at(centre, outward, perpendicularTo(outward));
    m_ends.push_back(circleAround(frame, m_radius, 0));
    m_faces.push_back({{ring(centre, outward, frame.x, m_radius)}, outward});
}

void Sweep::addFaces()
{
    const std::vector<Station> stations = selectStations(m_spine);
    // Where the spine bends, straight facets cut the corner and would stand out on the inner side.
    double excess = 0;
    for (std::size_t i = 1; i < stations.size(); ++i) {
        const double turn =
            std::acos(std::clamp(dot(stations[i - 1].tangent, stations[i].tangent), -1.0, 1.0));
        const double chord = length(stations[i].centre - stations[i - 1].centre);
        excess = std::max(excess, chord / 2 * std::tan(turn / 4));
    }
    Vector3 u = perpendicularTo(stations.front().tangent);
    std::vector<Vector3> previous;
    for (const Station& station : stations) {
        // Carried along without twisting.
        u = normalized(u - dot(u, station.tangent) * station.tangent);
        const std::vector<Vector3> current = ring(station.centre, station.tangent, u, m_radius - excess);
        for (std::size_t i = 0; i < previous.size(); ++i) {
            const std::size_t next = (i + 1) % previous.size();
            m_faces.push_back(quadrangle(previous[i], previous[next], current[next], current[i]));
        }
        previous = current;
    }
}

void Sweep::appendCurves(std::vector<Curve>& curves, const Vector3& toward) const
{
    curves.insert(curves.end(), m_ends.begin(), m_ends.end());
    for (const Curve& piece : m_spine)
        if (seenEndOn(piece, toward))
            appendOutlineEndOn(curves, piece, toward);
        else
            for (const double side : {1.0, -1.0})
                appendOutline(curves, piece, side, toward);
}

/// A straight part that is seen end on looks like its end, in so far as the bar does not bend away in front
/// of it.
void Sweep::appendOutlineEndOn(std::vector<Curve>& curves, const Curve& piece, const Vector3& toward) const
{
    const Vector3 nearer = pointAt(piece, dot(derivativeAt(piece, 0), toward) > 0 ? 1 : 0);
    ArcCurve quarter = circleAround(Frame::at(nearer, toward, perpendicularTo(toward)), m_radius, 0);
    // In quarters, because a bend hides half of it without another curve that tells where.
    for (int i = 0; i < 4; ++i) {
        quarter.from = i * pi / 2;
        quarter.to = (i + 1) * pi / 2;
        curves.emplace_back(quarter);
    }
}

/// The outline on one side of the spine, in the parts that the bar itself does not hide.
void Sweep::appendOutline(std::vector<Curve>& curves, const Curve& piece, double side,
                          const Vector3& toward) const
{
    PathCurve outline;
    const auto finish = [&curves, &outline] {
        if (outline.points.size() == 2)
            curves.emplace_back(LineCurve{outline.points[0], outline.points[1]});
        else if (outline.points.size() > 2)
            curves.emplace_back(outline);
        outline.points.clear();
    };
    const std::vector<double> samples = samplesOf(piece);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const Vector3 tangent = normalized(derivativeAt(piece, samples[i]));
        const Vector3 across = cross(tangent, toward);
        const Vector3 normal = side * across;
        const Vector3 bend = curvature(piece, samples, i);
        if (length(across) < 1e-9 || turnsInward(tangent, normalized(normal), bend, toward))
            finish();
        else
            outline.points.push_back(pointAt(piece, samples[i]) + m_radius * normalized(normal));
    }
    finish();
}

/// Whether the surface is hollow along the line of sight; then its outline lies behind a part of it that
/// stands out.
bool Sweep::turnsInward(const Vector3& tangent, const Vector3& normal, const Vector3& bend,
                        const Vector3& toward) const
{
    const double around = dot(toward, cross(tangent, normal));
    const double along = dot(toward, tangent);
    const double inward = dot(bend, normal);
    return around * around / m_radius < along * along * inward / (1 - m_radius * inward);
}

void Sweep::appendFaces(std::vector<Face>& faces, const Vector3&) const
{
    faces.insert(faces.end(), m_faces.begin(), m_faces.end());
}

} // namespace devcatalog
