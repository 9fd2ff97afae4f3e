#pragma once

#include "dev/catalog/drawings/solids/Body.h"
#include "dev/catalog/drawings/views/Camera.h"

#include <vector>

namespace devcatalog
{

/// Tells what faces hide from a camera.
class Occluder
{
public:
    /// @param tolerance how much nearer than a point a face must be to hide it.
    Occluder(const std::vector<Face>& faces, const Camera& camera, double tolerance);

    bool hides(const Vector3& point) const;

private:
    /// A face that is turned to the viewer, as seen; its depth is a x + b y + c.
    struct Cover {
        std::vector<std::vector<dwg::Point2>> loops;
        dwg::Point2 lower;
        dwg::Point2 upper;
        double a = 0.0;
        double b = 0.0;
        double c = 0.0;
    };

    void add(const Face& face);
    void fillCells();
    std::size_t cellOf(double value, double lower, double upper) const;

    Camera m_camera;
    double m_tolerance;
    std::vector<Cover> m_covers;
    dwg::Point2 m_lower;
    dwg::Point2 m_upper;
    std::size_t m_cellsPerSide = 1;
    std::vector<std::vector<std::size_t>> m_cells; ///< Indices of the covers that touch each cell of a grid.
};

} // namespace devcatalog
