#include "devcatalog/drawings/PartDrawing.h"

#include <QByteArray>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace devcatalog
{

namespace
{

constexpr double pi = 3.14159265358979323846;

double centimetres(const Configuration& configuration, std::string_view name)
{
    const auto found = std::find_if(configuration.parameters.begin(), configuration.parameters.end(),
                                    [name](const Parameter& each) { return each.name == name; });
    if (found == configuration.parameters.end())
        throw std::invalid_argument("no parameter " + std::string(name));
    return QByteArray::fromStdString(found->value).toDouble() / 10;
}

Entity polygon(std::initializer_list<Point2> points)
{
    Polyline line;
    for (const Point2& point : points)
        line.vertices.push_back({point, 0});
    line.closed = true;
    return {LineKind::Outline, line};
}

Entity rectangle(double left, double bottom, double right, double top)
{
    return polygon({{left, bottom}, {right, bottom}, {right, top}, {left, top}});
}

Entity hexagon(double acrossFlats)
{
    const double corner = acrossFlats / std::sqrt(3.0);
    Polyline line;
    for (int i = 0; i < 6; ++i)
        line.vertices.push_back({{corner * std::cos(i * pi / 3), corner * std::sin(i * pi / 3)}, 0});
    line.closed = true;
    return {LineKind::Outline, line};
}

Entity circle(double diameter)
{
    return {LineKind::Outline, Circle{{0, 0}, diameter / 2}};
}

std::vector<Entity> boltFront(const Configuration& configuration)
{
    const double corner = centimetres(configuration, "Width across flats") / std::sqrt(3.0);
    const double radius = centimetres(configuration, "Thread diameter") / 2;
    return {rectangle(-centimetres(configuration, "Head height"), -corner, 0, corner),
            rectangle(0, -radius, centimetres(configuration, "Length"), radius)};
}

std::vector<Entity> roundOrHexagonal(const Configuration& configuration, const char* height, double width)
{
    return {rectangle(-width / 2, 0, width / 2, centimetres(configuration, height))};
}

std::vector<Entity> draw(const std::string& family, const Configuration& configuration, bool top)
{
    if (family == "hex-bolt")
        return boltFront(configuration);
    if (family == "hex-nut") {
        const double flats = centimetres(configuration, "Width across flats");
        if (top)
            return {hexagon(flats), circle(centimetres(configuration, "Thread diameter"))};
        return roundOrHexagonal(configuration, "Height", 2 * flats / std::sqrt(3.0));
    }
    if (family == "washer") {
        const double outer = centimetres(configuration, "Outer diameter");
        if (top)
            return {circle(outer), circle(centimetres(configuration, "Inner diameter"))};
        return roundOrHexagonal(configuration, "Thickness", outer);
    }
    return {};
}

} // namespace

std::optional<Drawing> drawPart(const Part& part, const Configuration& configuration, std::string_view view)
{
    const bool top = view == "eDrawingView_TOP";
    const auto& unsupported = part.unsupportedViews;
    if ((!top && view != "eDrawingView_FRONT") ||
        std::find(unsupported.begin(), unsupported.end(), view) != unsupported.end())
        return std::nullopt;
    return Drawing{part.name, draw(part.family, configuration, top)};
}

} // namespace devcatalog
