#include "dev/catalog/drawings/views/ShadedPicture.h"

#include "dev/catalog/drawings/solids/Triangles.h"
#include "dev/catalog/drawings/views/ViewDrawing.h"
#include "dev/dwg/DrawingExtents.h"

#include <QColor>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <vector>

namespace devcatalog
{

namespace
{

constexpr int Oversampling = 4;
constexpr double Margin = 0.05;
/// How far a triangle may be from its surface, of the picture's larger side.
constexpr double Deviation = 5e-4;

QColor colourOf(Material material)
{
    switch (material) {
    case Material::Steel:
        return {0xb4, 0xbc, 0xc6};
    case Material::Zinc:
        return {0xc9, 0xcd, 0xc4};
    case Material::Aluminium:
        return {0xd4, 0xd9, 0xde};
    case Material::Brass:
        return {0xd8, 0xb4, 0x62};
    case Material::Bronze:
        return {0xb9, 0x84, 0x5a};
    case Material::DarkPlastic:
        return {0x7c, 0x86, 0x91};
    case Material::LightPlastic:
        return {0xdd, 0xdd, 0xd6};
    case Material::ColouredPlastic:
        return {0xe0, 0x8a, 0x4a};
    }
    return Qt::gray;
}

/// From millimetres in a view to pixels, with y down.
struct Fit {
    double scale = 1;
    QPointF offset;

    QPointF map(const dwg::Point2& point) const
    {
        return {scale * point.x + offset.x(), offset.y() - scale * point.y};
    }
};

Fit fitTo(const dwg::Extents& extents, int width, int height)
{
    const double scale = (1 - 2 * Margin) * std::min(width / extents.width(), height / extents.height());
    const dwg::Point2 centre = extents.centre();
    return {scale, {width / 2.0 - scale * centre.x, height / 2.0 + scale * centre.y}};
}

/// Fills triangles in an image larger than the picture, nearer ones over farther ones.
class TrianglePainter
{
public:
    TrianglePainter(int width, int height, const Fit& fit, const Camera& camera)
        : m_image(width * Oversampling, height * Oversampling, QImage::Format_ARGB32_Premultiplied),
          m_fit(fit),
          m_camera(camera),
          // The light comes over the viewer's left shoulder.
          m_light(-0.45 * camera.right.XYZ() + 0.65 * camera.up.XYZ() + 0.75 * camera.toward.XYZ()),
          m_glance(gp_Dir(m_light.XYZ() + camera.toward.XYZ())),
          m_depths(static_cast<std::size_t>(m_image.width()) * static_cast<std::size_t>(m_image.height()),
                   -std::numeric_limits<double>::infinity())
    {
        m_image.fill(Qt::transparent);
    }

    void paint(const Triangle& triangle)
    {
        std::array<Corner, 3> corners;
        for (std::size_t i = 0; i < 3; ++i)
            corners[i] = cornerOf(triangle.corners[i], triangle.normals[i]);
        const double area = doubleArea(corners[0].at, corners[1].at, corners[2].at);
        if (area >= 0) // turned away, y being down
            return;
        m_colour = colourOf(triangle.material);
        const auto [top, bottom] = std::minmax({corners[0].at.y(), corners[1].at.y(), corners[2].at.y()});
        const int last = std::min(m_image.height() - 1, static_cast<int>(bottom));
        for (int row = std::max(0, static_cast<int>(top)); row <= last; ++row)
            paintRow(row, corners, area);
    }

    QImage picture() const
    {
        return m_image.scaled(m_image.width() / Oversampling, m_image.height() / Oversampling,
                              Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }

private:
    /// A triangle's corner in the image.
    struct Corner {
        QPointF at;
        double depth = 0.0;
        double brightness = 0.0;
        double gloss = 0.0;
    };

    static double doubleArea(const QPointF& a, const QPointF& b, const QPointF& c)
    {
        return (b.x() - a.x()) * (c.y() - a.y()) - (b.y() - a.y()) * (c.x() - a.x());
    }

    Corner cornerOf(const gp_XYZ& place, const gp_XYZ& normal) const
    {
        return {Oversampling * m_fit.map(m_camera.project(place)), m_camera.depth(place),
                0.5 + 0.5 * std::max(0.0, normal.Dot(m_light.XYZ())),
                50 * std::pow(std::max(0.0, normal.Dot(m_glance.XYZ())), 24)};
    }

    void paintRow(int row, const std::array<Corner, 3>& corners, double area)
    {
        const double y = row + 0.5;
        double left = m_image.width();
        double right = 0;
        for (std::size_t i = 0; i < 3; ++i) {
            const QPointF& a = corners[i].at;
            const QPointF& b = corners[(i + 1) % 3].at;
            if ((a.y() > y) == (b.y() > y))
                continue;
            const double x = a.x() + (b.x() - a.x()) * (y - a.y()) / (b.y() - a.y());
            left = std::min(left, x);
            right = std::max(right, x);
        }
        auto* pixels = reinterpret_cast<QRgb*>(m_image.scanLine(row));
        double* depths = m_depths.data() + static_cast<std::ptrdiff_t>(row) * m_image.width();
        const int last = std::min(m_image.width() - 1, static_cast<int>(std::ceil(right - 0.5)) - 1);
        for (int column = std::max(0, static_cast<int>(std::ceil(left - 0.5))); column <= last; ++column) {
            const QPointF at(column + 0.5, y);
            const double a = doubleArea(corners[1].at, corners[2].at, at) / area;
            const double b = doubleArea(corners[2].at, corners[0].at, at) / area;
            const auto mean = [&](double Corner::*value) {
                return a * corners[0].*value + b * corners[1].*value + (1 - a - b) * corners[2].*value;
            };
            const double depth = mean(&Corner::depth);
            if (depth <= depths[column])
                continue;
            depths[column] = depth;
            pixels[column] = shaded(mean(&Corner::brightness), mean(&Corner::gloss));
        }
    }

    QRgb shaded(double brightness, double gloss) const
    {
        const auto channel = [=](int value) {
            return std::min(255, static_cast<int>(brightness * value + gloss));
        };
        return qRgb(channel(m_colour.red()), channel(m_colour.green()), channel(m_colour.blue()));
    }

    QImage m_image;
    Fit m_fit;
    const Camera& m_camera;
    QColor m_colour;
    gp_Dir m_light;
    gp_Dir m_glance; ///< Normal of surfaces that mirror the light to the viewer.
    std::vector<double> m_depths;
};

/// Adds shapes to a path; those of pictorial views are made of straight pieces.
struct PathMaker {
    QPainterPath& path;
    const Fit& fit;

    void operator()(const dwg::LineSegment& line) const
    {
        path.moveTo(fit.map(line.from));
        path.lineTo(fit.map(line.to));
    }
    void operator()(const dwg::Circle& circle) const
    {
        path.addEllipse(fit.map(circle.centre), fit.scale * circle.radius, fit.scale * circle.radius);
    }
    void operator()(const dwg::Polyline& line) const
    {
        QPolygonF points;
        for (const dwg::PolylineVertex& vertex : line.vertices)
            points << fit.map(vertex.point);
        path.addPolygon(points);
        if (line.closed)
            path.closeSubpath();
    }
};

void drawLines(QImage& image, const std::vector<dwg::Entity>& entities, const Fit& fit)
{
    QPainterPath edges;
    QPainterPath threads;
    for (const dwg::Entity& entity : entities) {
        QPainterPath& path = entity.kind == dwg::LineKind::Thread ? threads : edges;
        std::visit(PathMaker{path, fit}, entity.shape);
    }
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const double width = std::clamp(std::min(image.width(), image.height()) / 110.0, 0.7, 2.0);
    painter.setPen(
        QPen(QColor(0x3c, 0x46, 0x52, 0xa0), 0.6 * width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(threads);
    painter.setPen(QPen(QColor(0x3c, 0x46, 0x52, 0xc0), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(edges);
}

} // namespace

QImage paintSolid(const Solid& solid, const Camera& camera, int width, int height)
{
    const std::vector<dwg::Entity> lines = drawView(solid, camera);
    const dwg::Extents extents = dwg::extentsOf(lines).value();
    const Fit fit = fitTo(extents, width, height);
    TrianglePainter painter(width, height, fit, camera);
    for (const Triangle& triangle :
         trianglesOf(solid, Deviation * std::max(extents.width(), extents.height())))
        painter.paint(triangle);
    QImage picture = painter.picture();
    drawLines(picture, lines, fit);
    return picture;
}

} // namespace devcatalog
