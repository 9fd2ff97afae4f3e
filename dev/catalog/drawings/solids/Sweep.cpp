#include "dev/catalog/drawings/solids/Sweep.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace devcatalog
{

namespace
{

constexpr int facetsAround = 32;
constexpr double facetAngle = pi / 40;
// A little less than the radius, so that outlines never lie on the border of a facet.
constexpr double within = 0.999;

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

/// Where a spine bends, straight facets cut the corner and would stand out of the bar on the inner side.
/// @return by how much, as a vector to the inner side.
Vector3 innerExcess(const std::vector<Station>& stations, std::size_t i)
{
    const Station& before = stations[i == 0 ? 0 : i - 1];
    const Station& after = stations[std::min(i + 1, stations.size() - 1)];
    const Vector3 turn = after.tangent - before.tangent;
    // An arc's height over its chord is an eighth of the chord times the angle; two chords meet at an inner
    // station.
    const double chords = i == 0 || i + 1 == stations.size() ? 1 : 2;
    return length(after.centre - before.centre) / (8 * chords * chords) * turn;
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
    Face end{{{}}, outward};
    for (int i = 0; i < facetsAround; ++i)
        end.loops.front().push_back(frame.polar(m_radius, 2 * pi * i / facetsAround, 0));
    m_faces.push_back(end);
    m_ends.push_back(circleAround(frame, m_radius, 0));
}

void Sweep::addFaces()
{
    const std::vector<Station> stations = selectStations(m_spine);
    Vector3 u = perpendicularTo(stations.front().tangent);
    std::vector<Vector3> previous;
    for (std::size_t i = 0; i < stations.size(); ++i) {
        // Carried along without twisting.
        const Station& station = stations[i];
        u = normalized(u - dot(u, station.tangent) * station.tangent);
        const Vector3 excess = innerExcess(stations, i);
        std::vector<Vector3> ring;
        for (int side = 0; side < facetsAround; ++side) {
            const Vector3 outward =
                Frame::at({}, station.tangent, u).polar(1, 2 * pi * side / facetsAround, 0);
            ring.push_back(station.centre +
                           (within * m_radius - std::max(0.0, dot(outward, excess))) * outward);
        }
        for (std::size_t side = 0; side < previous.size(); ++side) {
            const std::size_t next = (side + 1) % previous.size();
            m_faces.push_back(quadrangle(previous[side], previous[next], ring[next], ring[side]));
        }
        previous = ring;
    }
}

void Sweep::appendCurves(std::vector<Curve>& curves, const Vector3& toward) const
{
    curves.insert(curves.end(), m_ends.begin(), m_ends.end());
    for (std::size_t i = 0; i < m_spine.size(); ++i)
        if (seenEndOn(m_spine[i], toward))
            appendOutlineEndOn(curves, i, toward);
        else
            for (const double side : {1.0, -1.0})
                appendOutline(curves, m_spine[i], side, toward);
}

/// A straight part that is seen end on, behind a bend, is round on the side that the bend turns away from.
void Sweep::appendOutlineEndOn(std::vector<Curve>& curves, std::size_t index, const Vector3& toward) const
{
    const bool endIsNearer = dot(derivativeAt(m_spine[index], 0), toward) > 0;
    if (index == (endIsNearer ? m_spine.size() - 1 : 0))
        return; // Its end face is in front.
    const Vector3 centre = pointAt(m_spine[index], endIsNearer ? 1 : 0);
    const Curve& bend = m_spine[endIsNearer ? index + 1 : index - 1];
    const Vector3 offset = pointAt(bend, endIsNearer ? 1 : 0) - centre;
    const Vector3 away = normalized(dot(offset, toward) * toward - offset);
    curves.emplace_back(ArcCurve{centre, m_radius * cross(away, toward), m_radius * away, 0, pi});
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
        // A little within the piece, for at its end the spine may point at the viewer.
        const double t = std::clamp(samples[i], 1e-6, 1 - 1e-6);
        const Vector3 tangent = normalized(derivativeAt(piece, t));
        const Vector3 across = cross(tangent, toward);
        const Vector3 normal = normalized(side * across);
        if (length(across) < 1e-9 || turnsInward(tangent, normal, curvature(piece, samples, i), toward))
            finish();
        else
            outline.points.push_back(pointAt(piece, samples[i]) + m_radius * normal);
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
