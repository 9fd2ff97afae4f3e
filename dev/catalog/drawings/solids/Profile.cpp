#include "dev/catalog/drawings/solids/Profile.h"

#include "dev/catalog/drawings/solids/Vector3.h"

#include <algorithm>
#include <cmath>

namespace devcatalog
{

namespace
{

constexpr double facetAngle = pi / 36;
const double quarterTurn = std::tan(pi / 8);

double distance(const dwg::Point2& a, const dwg::Point2& b)
{
    return std::hypot(b.x - a.x, b.y - a.y);
}

dwg::Point2 polar(const dwg::Point2& centre, double radius, double angle)
{
    return {centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)};
}

} // namespace

Profile circle(const dwg::Point2& centre, double radius)
{
    return {{{{centre.x + radius, centre.y}, 1}, {{centre.x - radius, centre.y}, 1}}, true};
}

Profile rectangle(const dwg::Point2& lowerLeft, const dwg::Point2& upperRight)
{
    return polygon({lowerLeft, {upperRight.x, lowerLeft.y}, upperRight, {lowerLeft.x, upperRight.y}});
}

Profile roundedRectangle(const dwg::Point2& lowerLeft, const dwg::Point2& upperRight, double radius)
{
    const double left = lowerLeft.x;
    const double bottom = lowerLeft.y;
    const double right = upperRight.x;
    const double top = upperRight.y;
    return {{{{left + radius, bottom}, 0},
             {{right - radius, bottom}, quarterTurn},
             {{right, bottom + radius}, 0},
             {{right, top - radius}, quarterTurn},
             {{right - radius, top}, 0},
             {{left + radius, top}, quarterTurn},
             {{left, top - radius}, 0},
             {{left, bottom + radius}, quarterTurn}},
            true};
}

Profile regularPolygon(int corners, double circumradius, double phase)
{
    Profile result;
    for (int i = 0; i < corners; ++i)
        result.vertices.push_back({polar({}, circumradius, phase + 2 * pi * i / corners), 0});
    result.closed = true;
    return result;
}

Profile slot(const dwg::Point2& centre, double length, double width)
{
    const double x = (length - width) / 2;
    const double y = width / 2;
    return {{{{centre.x - x, centre.y - y}, 0},
             {{centre.x + x, centre.y - y}, 1},
             {{centre.x + x, centre.y + y}, 0},
             {{centre.x - x, centre.y + y}, 1}},
            true};
}

Profile polygon(const std::vector<dwg::Point2>& corners)
{
    Profile result = openOutline(corners);
    result.closed = true;
    return result;
}

Profile openOutline(const std::vector<dwg::Point2>& corners)
{
    Profile result;
    for (const dwg::Point2& corner : corners)
        result.vertices.push_back({corner, 0});
    return result;
}

Profile reversed(const Profile& profile)
{
    Profile result;
    const auto& vertices = profile.vertices;
    const std::size_t count = vertices.size();
    for (std::size_t i = count; i-- > 0;)
        result.vertices.push_back({vertices[i].point, -vertices[(i + count - 1) % count].bulge});
    result.closed = profile.closed;
    return result;
}

double bulgeThrough(const dwg::Point2& from, const dwg::Point2& over, const dwg::Point2& to)
{
    const double x1 = from.x - over.x;
    const double y1 = from.y - over.y;
    const double x2 = to.x - over.x;
    const double y2 = to.y - over.y;
    if (std::hypot(x1, y1) < 1e-12 || std::hypot(x2, y2) < 1e-12)
        return 0;
    // The angle at the middle point is half a turn less half the arc's sweep.
    const double turn = std::atan2(x1 * y2 - y1 * x2, x1 * x2 + y1 * y2);
    const double half = turn > 0 ? pi - turn : -pi - turn;
    return -std::tan(half / 2);
}

double signedArea(const Profile& profile)
{
    double area = 0;
    for (const ProfileSegment& segment : segmentsOf(profile)) {
        area += segment.from.x * segment.to.y - segment.from.y * segment.to.x;
        // The chords of two half circles enclose nothing, so an arc's height counts as well.
        const double chord = distance(segment.from, segment.to);
        area += segment.bulge * chord * chord / 2;
    }
    return area;
}

bool ProfileSegment::isArc() const
{
    return std::abs(bulge) > 1e-12;
}

double ProfileSegment::sweep() const
{
    return 4 * std::atan(bulge);
}

double ProfileSegment::radius() const
{
    return distance(from, to) / (2 * std::sin(std::abs(sweep()) / 2));
}

dwg::Point2 ProfileSegment::centre() const
{
    // The centre lies to the left of the chord by (1 - bulge^2) / (4 bulge) of its length.
    const double offset = (1 - bulge * bulge) / (4 * bulge);
    return {(from.x + to.x) / 2 - offset * (to.y - from.y), (from.y + to.y) / 2 + offset * (to.x - from.x)};
}

double ProfileSegment::startAngle() const
{
    const dwg::Point2 middle = centre();
    return std::atan2(from.y - middle.y, from.x - middle.x);
}

dwg::Point2 ProfileSegment::startDirection() const
{
    const double angle = std::atan2(to.y - from.y, to.x - from.x) - sweep() / 2;
    return {std::cos(angle), std::sin(angle)};
}

dwg::Point2 ProfileSegment::endDirection() const
{
    const double angle = std::atan2(to.y - from.y, to.x - from.x) + sweep() / 2;
    return {std::cos(angle), std::sin(angle)};
}

std::vector<ProfileSegment> segmentsOf(const Profile& profile)
{
    std::vector<ProfileSegment> segments;
    const auto& vertices = profile.vertices;
    const std::size_t count = profile.closed ? vertices.size() : vertices.size() - 1;
    for (std::size_t i = 0; i < count; ++i)
        segments.push_back({vertices[i].point, vertices[(i + 1) % vertices.size()].point, vertices[i].bulge});
    return segments;
}

bool bendsBetween(const ProfileSegment& before, const ProfileSegment& after)
{
    const dwg::Point2 a = before.endDirection();
    const dwg::Point2 b = after.startDirection();
    return std::abs(a.x * b.y - a.y * b.x) > 1e-6 || a.x * b.x + a.y * b.y < 0;
}

std::vector<dwg::Point2> facets(const ProfileSegment& segment)
{
    if (!segment.isArc())
        return {segment.from};
    const double sweep = segment.sweep();
    const int count = std::max(2, static_cast<int>(std::ceil(std::abs(sweep) / facetAngle)));
    const double step = sweep / count;
    // The chords of an arc that bulges out of the material are inside it; of one that bulges in, the tangents
    // are.
    const bool tangents = sweep < 0;
    const double radius = tangents ? segment.radius() / std::cos(step / 2) : segment.radius();
    std::vector<dwg::Point2> points{segment.from};
    for (int i = tangents ? 0 : 1; i < count; ++i)
        points.push_back(
            polar(segment.centre(), radius, segment.startAngle() + (tangents ? i + 0.5 : i) * step));
    return points;
}

std::vector<dwg::Point2> facets(const Profile& profile)
{
    std::vector<dwg::Point2> points;
    for (const ProfileSegment& segment : segmentsOf(profile)) {
        const std::vector<dwg::Point2> more = facets(segment);
        points.insert(points.end(), more.begin(), more.end());
    }
    return points;
}

} // namespace devcatalog
