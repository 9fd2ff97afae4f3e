#include "dev/catalog/drawings/views/Occluder.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace devcatalog
{

namespace
{

constexpr double infinity = std::numeric_limits<double>::infinity();

bool contains(const std::vector<std::vector<dwg::Point2>>& loops, const dwg::Point2& point)
{
    bool inside = false;
    for (const auto& loop : loops)
        for (std::size_t i = 0, previous = loop.size() - 1; i < loop.size(); previous = i++) {
            const dwg::Point2& a = loop[previous];
            const dwg::Point2& b = loop[i];
            if ((a.y > point.y) != (b.y > point.y) &&
                point.x < a.x + (b.x - a.x) * (point.y - a.y) / (b.y - a.y))
                inside = !inside;
        }
    return inside;
}

} // namespace

Occluder::Occluder(const std::vector<Face>& faces, const Camera& camera, double tolerance)
    : m_camera(camera), m_tolerance(tolerance), m_lower{infinity, infinity}, m_upper{-infinity, -infinity}
{
    for (const Face& face : faces)
        if (dot(face.normal, camera.toward) > 1e-6)
            add(face);
    fillCells();
}

void Occluder::add(const Face& face)
{
    Cover cover;
    cover.lower = {infinity, infinity};
    cover.upper = {-infinity, -infinity};
    Vector3 middle;
    for (const auto& loop : face.loops) {
        cover.loops.emplace_back();
        for (const Vector3& corner : loop) {
            const dwg::Point2 point = m_camera.project(corner);
            cover.loops.back().push_back(point);
            cover.lower = {std::min(cover.lower.x, point.x), std::min(cover.lower.y, point.y)};
            cover.upper = {std::max(cover.upper.x, point.x), std::max(cover.upper.y, point.y)};
        }
    }
    for (const Vector3& corner : face.loops.front())
        middle = middle + (1.0 / static_cast<double>(face.loops.front().size())) * corner;
    const double facing = dot(face.normal, m_camera.toward);
    cover.a = -dot(face.normal, m_camera.right) / facing;
    cover.b = -dot(face.normal, m_camera.up) / facing;
    const dwg::Point2 projected = m_camera.project(middle);
    cover.c = m_camera.depth(middle) - cover.a * projected.x - cover.b * projected.y;
    m_lower = {std::min(m_lower.x, cover.lower.x), std::min(m_lower.y, cover.lower.y)};
    m_upper = {std::max(m_upper.x, cover.upper.x), std::max(m_upper.y, cover.upper.y)};
    m_covers.push_back(cover);
}

void Occluder::fillCells()
{
    const double side = std::sqrt(static_cast<double>(m_covers.size()));
    m_cellsPerSide = static_cast<std::size_t>(std::clamp(side, 1.0, 64.0));
    m_cells.resize(m_cellsPerSide * m_cellsPerSide);
    for (std::size_t i = 0; i < m_covers.size(); ++i) {
        const Cover& cover = m_covers[i];
        const std::size_t lastX = cellOf(cover.upper.x, m_lower.x, m_upper.x);
        const std::size_t lastY = cellOf(cover.upper.y, m_lower.y, m_upper.y);
        for (std::size_t y = cellOf(cover.lower.y, m_lower.y, m_upper.y); y <= lastY; ++y)
            for (std::size_t x = cellOf(cover.lower.x, m_lower.x, m_upper.x); x <= lastX; ++x)
                m_cells[y * m_cellsPerSide + x].push_back(i);
    }
}

std::size_t Occluder::cellOf(double value, double lower, double upper) const
{
    const double cells = static_cast<double>(m_cellsPerSide);
    return static_cast<std::size_t>(std::clamp((value - lower) / (upper - lower) * cells, 0.0, cells - 1));
}

bool Occluder::hides(const Vector3& point) const
{
    const dwg::Point2 at = m_camera.project(point);
    const double limit = m_camera.depth(point) + m_tolerance;
    if (m_covers.empty() || at.x < m_lower.x || at.x > m_upper.x || at.y < m_lower.y || at.y > m_upper.y)
        return false;
    const std::size_t cell =
        cellOf(at.y, m_lower.y, m_upper.y) * m_cellsPerSide + cellOf(at.x, m_lower.x, m_upper.x);
    return std::any_of(m_cells[cell].begin(), m_cells[cell].end(), [this, &at, limit](std::size_t i) {
        const Cover& cover = m_covers[i];
        return at.x >= cover.lower.x && at.x <= cover.upper.x && at.y >= cover.lower.y &&
               at.y <= cover.upper.y && cover.a * at.x + cover.b * at.y + cover.c > limit &&
               contains(cover.loops, at);
    });
}

} // namespace devcatalog
