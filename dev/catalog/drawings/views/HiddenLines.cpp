#include "dev/catalog/drawings/views/HiddenLines.h"

#include "dev/catalog/drawings/views/CurveSplitter.h"
#include "dev/catalog/drawings/views/Occluder.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace devcatalog
{

namespace
{

/// Where between two splits a curve is probed: off the middle, where symmetric parts have things in line.
constexpr std::array<double, 3> probes = {0.4871, 0.2113, 0.7837};

struct Candidate {
    Curve curve;
    bool hiddenEdges;
};

bool seenEdgeOn(const ArcCurve& arc, const Camera& camera)
{
    const Vector3 normal = cross(arc.u, arc.v);
    return std::abs(dot(normal, camera.toward)) < 1e-9 * length(normal);
}

/// Splits an arc that is seen edge on where it turns back on itself, so that each part looks like a line.
std::vector<Curve> straightParts(const ArcCurve& arc, const Camera& camera)
{
    const Vector3 across = normalized(cross(camera.toward, cross(arc.u, arc.v)));
    const double turn = std::atan2(dot(arc.v, across), dot(arc.u, across));
    const double low = std::min(arc.from, arc.to);
    const double high = std::max(arc.from, arc.to);
    std::vector<double> angles{low};
    const int first = static_cast<int>(std::ceil((low - turn) / pi + 1e-9));
    for (int i = first; turn + i * pi < high - 1e-9; ++i)
        angles.push_back(turn + i * pi);
    angles.push_back(high);
    std::vector<Curve> parts;
    for (std::size_t i = 0; i + 1 < angles.size(); ++i)
        parts.emplace_back(ArcCurve{arc.centre, arc.u, arc.v, angles[i], angles[i + 1]});
    return parts;
}

std::vector<Candidate> candidates(const Solid& solid, const Camera& camera)
{
    std::vector<Candidate> result;
    for (const Member& member : solid.members) {
        std::vector<Curve> curves;
        member.body->appendCurves(curves, camera.toward);
        for (const Curve& curve : curves) {
            const auto* line = std::get_if<LineCurve>(&curve);
            const auto* arc = std::get_if<ArcCurve>(&curve);
            if (line && length(cross(line->to - line->from, camera.toward)) < 1e-9)
                continue;
            if (arc && seenEdgeOn(*arc, camera))
                for (const Curve& part : straightParts(*arc, camera))
                    result.push_back({part, member.hiddenEdges});
            else
                result.push_back({curve, member.hiddenEdges});
        }
    }
    return result;
}

/// A part of a candidate between two splits.
struct Piece {
    double from = 0.0;
    double to = 0.0;
    bool hidden = false;
    bool repeated = false; ///< Looks the same as another piece, which is drawn instead.
    dwg::Point2 start;
    dwg::Point2 middle;
    dwg::Point2 end;
};

/// Whether a curve is hidden between two splits. It is so all along or nowhere, but facets stand in for round
/// surfaces, so that two probes of three decide.
bool isHidden(const Curve& curve, double from, double to, const Occluder& occluder)
{
    const auto count = std::count_if(probes.begin(), probes.end(), [&](double probe) {
        return occluder.hides(pointAt(curve, from + probe * (to - from)));
    });
    return count > 1;
}

std::vector<Piece> piecesOf(const Candidate& candidate, const std::vector<double>& splits,
                            const Camera& camera, const Occluder& occluder)
{
    const auto seen = [&candidate, &camera](double t) { return camera.project(pointAt(candidate.curve, t)); };
    std::vector<Piece> pieces;
    for (std::size_t i = 0; i + 1 < splits.size(); ++i) {
        Piece piece;
        piece.from = splits[i];
        piece.to = splits[i + 1];
        if (piece.to - piece.from < 1e-6)
            continue;
        piece.hidden = isHidden(candidate.curve, piece.from, piece.to, occluder);
        piece.start = seen(piece.from);
        piece.middle = seen((piece.from + piece.to) / 2);
        piece.end = seen(piece.to);
        pieces.push_back(piece);
    }
    return pieces;
}

double distance(const dwg::Point2& a, const dwg::Point2& b)
{
    return std::hypot(b.x - a.x, b.y - a.y);
}

/// How far apart the middles of two pieces with the same ends can be when they are the same curve: others
/// would cross in between, or be well apart.
double reachOf(const Piece& piece, double tolerance)
{
    return tolerance + 0.02 * distance(piece.start, piece.end);
}

bool looksLike(const Piece& a, const Piece& b, double tolerance)
{
    if (distance(a.middle, b.middle) > reachOf(a, tolerance))
        return false;
    return (distance(a.start, b.start) < tolerance && distance(a.end, b.end) < tolerance) ||
           (distance(a.start, b.end) < tolerance && distance(a.end, b.start) < tolerance);
}

/// Of curved pieces that cover one another keeps one, a visible one if there is any. Lines are left to the
/// line work.
void markRepeated(const std::vector<Candidate>& candidates, std::vector<std::vector<Piece>>& pieces,
                  double tolerance)
{
    std::vector<Piece*> curved;
    for (std::size_t i = 0; i < candidates.size(); ++i)
        if (!std::holds_alternative<LineCurve>(candidates[i].curve))
            for (Piece& piece : pieces[i])
                curved.push_back(&piece);
    std::stable_sort(curved.begin(), curved.end(),
                     [](const Piece* a, const Piece* b) { return a->middle.x < b->middle.x; });
    for (std::size_t i = 0; i < curved.size(); ++i) {
        Piece& one = *curved[i];
        const double last = one.middle.x + reachOf(one, tolerance);
        for (std::size_t j = i + 1; j < curved.size() && curved[j]->middle.x <= last && !one.repeated; ++j) {
            Piece& other = *curved[j];
            if (!other.repeated && looksLike(one, other, tolerance))
                (one.hidden ? one : other).repeated = true;
        }
    }
}

/// Joins what splitting took apart, where the pieces are all seen or all hidden.
void appendStrokes(std::vector<Stroke>& strokes, const Candidate& candidate, const std::vector<Piece>& pieces)
{
    const auto joins = [](const Piece& a, const Piece& b) {
        return a.hidden == b.hidden && !a.repeated && !b.repeated;
    };
    std::vector<Piece> joined;
    for (const Piece& piece : pieces)
        if (!joined.empty() && joins(joined.back(), piece))
            joined.back().to = piece.to;
        else
            joined.push_back(piece);
    const auto* arc = std::get_if<ArcCurve>(&candidate.curve);
    if (arc && arc->isFullCircle() && joined.size() > 1 && joins(joined.front(), joined.back())) {
        joined.front().from = joined.back().from - 1;
        joined.pop_back();
    }
    for (const Piece& piece : joined)
        if (!piece.repeated && (!piece.hidden || candidate.hiddenEdges))
            strokes.push_back({portion(candidate.curve, piece.from, piece.to), piece.hidden});
}

double extentOf(const std::vector<Face>& faces)
{
    Vector3 lower = faces.front().loops.front().front();
    Vector3 upper = lower;
    for (const Face& face : faces)
        for (const auto& loop : face.loops)
            for (const Vector3& point : loop) {
                lower = {std::min(lower.x, point.x), std::min(lower.y, point.y), std::min(lower.z, point.z)};
                upper = {std::max(upper.x, point.x), std::max(upper.y, point.y), std::max(upper.z, point.z)};
            }
    return std::max({upper.x - lower.x, upper.y - lower.y, upper.z - lower.z});
}

} // namespace

StrokeSet findStrokes(const Solid& solid, const Camera& camera)
{
    std::vector<Face> faces;
    for (const Member& member : solid.members)
        member.body->appendFaces(faces, camera.toward);
    StrokeSet result;
    result.size = extentOf(faces);
    const double tolerance = 1e-6 * result.size;
    const std::vector<Candidate> found = candidates(solid, camera);
    std::vector<Curve> curves;
    curves.reserve(found.size());
    for (const Candidate& candidate : found)
        curves.push_back(candidate.curve);
    const auto splits = CurveSplitter(curves, camera, tolerance).split();
    const Occluder occluder(faces, camera, tolerance);
    std::vector<std::vector<Piece>> pieces;
    for (std::size_t i = 0; i < found.size(); ++i)
        pieces.push_back(piecesOf(found[i], splits[i], camera, occluder));
    markRepeated(found, pieces, 10 * tolerance);
    for (std::size_t i = 0; i < found.size(); ++i)
        appendStrokes(result.strokes, found[i], pieces[i]);
    return result;
}

} // namespace devcatalog
