#pragma once

#include "dev/catalog/drawings/solids/Curve.h"
#include "dev/catalog/drawings/views/Camera.h"

#include <vector>

namespace devcatalog
{

/// Finds where curves cross or touch one another as seen by a camera: only there an edge can begin or end to
/// be hidden.
class CurveSplitter
{
public:
    /// @param curves must outlive the splitter.
    /// @param tolerance distance at which an end counts as touching.
    CurveSplitter(const std::vector<Curve>& curves, const Camera& camera, double tolerance);

    /// @return for each curve the parameters in between which nothing crosses it, ascending from 0 to 1.
    std::vector<std::vector<double>> split();

private:
    /// Some neighbouring segments and the rectangle around them, to pass over what is far away.
    struct Stretch {
        std::size_t first = 0;
        std::size_t end = 0;
        dwg::Point2 lower;
        dwg::Point2 upper;
    };

    /// A curve as the camera sees it, in straight segments.
    struct Flat {
        std::vector<double> parameters;
        std::vector<dwg::Point2> points;
        std::vector<Stretch> stretches;
        bool straight = false; ///< Looks like a line, whatever it is.
        dwg::Point2 lower;
        dwg::Point2 upper;

        double parameterAt(std::size_t segment, double fraction) const
        {
            return parameters[segment] + fraction * (parameters[segment + 1] - parameters[segment]);
        }
    };

    struct Segment {
        std::size_t curve = 0;
        std::size_t index = 0;
    };

    Flat flatten(const Curve& curve) const;
    void crossTwo(std::size_t i, std::size_t j);
    void crossSegments(const Segment& one, const Segment& other);
    bool isWithin(const Segment& segment, double fraction) const;
    void touchSideways(std::size_t line, std::size_t arc);
    void touch(const dwg::Point2& end, std::size_t j);
    bool refineCrossing(const Segment& one, double& s, const Segment& other, double& t) const;
    dwg::Point2 pointOn(const Segment& segment, double t) const;
    dwg::Point2 derivativeOn(const Segment& segment, double t) const;
    dwg::Point2 flatPoint(std::size_t i, double t) const;
    dwg::Point2 flatDerivative(std::size_t i, double t) const;

    const std::vector<Curve>& m_curves;
    Camera m_camera;
    double m_tolerance;
    std::vector<Flat> m_flats;
    std::vector<std::vector<double>> m_splits;
};

} // namespace devcatalog
