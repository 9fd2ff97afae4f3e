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

constexpr int Oversampling = 3;
constexpr double Margin = 0.05;
/// How far a triangle may be from its surface, of the picture's larger side.
constexpr double Deviation = 1e-3;

/// From millimetres in a view to pixels, with y down.
QTransform fitTo(const dwg::Extents& extents, int width, int height)
{
    const double scale = (1 - 2 * Margin) * std::min(width / extents.width(), height / extents.height());
    const dwg::Point2 centre = extents.centre();
    return {scale, 0, 0, -scale, width / 2.0 - scale * centre.x, height / 2.0 + scale * centre.y};
}

/// Fills triangles in an image larger than the picture, nearer ones over farther ones.
class TrianglePainter
{
public:
    TrianglePainter(int width, int height, const QTransform& fit, const Camera& camera)
        : m_image(width * Oversampling, height * Oversampling, QImage::Format_ARGB32_Premultiplied),
          m_fit(fit),
          m_camera(camera),
          // The light comes over the viewer's left shoulder.
          m_light(-0.45 * camera.right.XYZ() + 0.65 * camera.up.XYZ() + 0.75 * camera.toward.XYZ()),
          m_glance(gp_Dir(m_light.XYZ() + camera.toward.XYZ())),
          m_depths(static_cast<std::size_t>(m_image.width()) * static_cast<std::size_t>(m_image.height()),
                   -std::numeric_limits<float>::infinity())
    {
        m_image.fill(Qt::transparent);
    }

    void paint(const Triangle& triangle)
    {
        std::array<Corner, 3> corners;
        for (std::size_t i = 0; i < 3; ++i)
            corners[i] = cornerOf(triangle.corners[i]);
        const double area = doubleArea(corners[0].at, corners[1].at, corners[2].at);
        if (area >= 0) // turned away, y being down
            return;
        m_colour = QColor(static_cast<QRgb>(triangle.material));
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

    Corner cornerOf(const SurfacePoint& point) const
    {
        const gp_Pnt2d seen = m_camera.project(point.place);
        return {Oversampling * m_fit.map(QPointF(seen.X(), seen.Y())), m_camera.depth(point.place),
                0.5 + 0.5 * std::max(0.0, point.normal.Dot(m_light.XYZ())),
                50 * std::pow(std::max(0.0, point.normal.Dot(m_glance.XYZ())), 24)};
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
        float* depths = m_depths.data() + static_cast<std::ptrdiff_t>(row) * m_image.width();
        const int last = std::min(m_image.width() - 1, static_cast<int>(std::ceil(right - 0.5)) - 1);
        for (int column = std::max(0, static_cast<int>(std::ceil(left - 0.5))); column <= last; ++column) {
            const QPointF at(column + 0.5, y);
            const double a = doubleArea(corners[1].at, corners[2].at, at) / area;
            const double b = doubleArea(corners[2].at, corners[0].at, at) / area;
            const auto mean = [&](double Corner::*value) {
                return a * corners[0].*value + b * corners[1].*value + (1 - a - b) * corners[2].*value;
            };
            const auto depth = static_cast<float>(mean(&Corner::depth));
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
    QTransform m_fit;
    const Camera& m_camera;
    QColor m_colour;
    gp_Dir m_light;
    gp_Dir m_glance; ///< Normal of surfaces that mirror the light to the viewer.
    std::vector<float> m_depths;
};

/// The lines of a pictorial view, which are made of straight pieces: the turns of threads or all others.
QPainterPath pathOf(const std::vector<dwg::Entity>& entities, bool threads)
{
    QPainterPath path;
    for (const auto& [kind, shape] : entities) {
        if ((kind == dwg::LineKind::Thread) != threads)
            continue;
        if (const auto* line = std::get_if<dwg::LineSegment>(&shape)) {
            path.moveTo(line->from.x, line->from.y);
            path.lineTo(line->to.x, line->to.y);
        } else if (const auto* polyline = std::get_if<dwg::Polyline>(&shape)) {
            QPolygonF points;
            for (const dwg::PolylineVertex& vertex : polyline->vertices)
                points << QPointF(vertex.point.x, vertex.point.y);
            path.addPolygon(points);
            if (polyline->closed)
                path.closeSubpath();
        }
    }
    return path;
}

void drawLines(QImage& image, const std::vector<dwg::Entity>& entities, const QTransform& fit)
{
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const double width = std::clamp(std::min(image.width(), image.height()) / 110.0, 0.7, 2.0);
    for (const bool threads : {true, false}) {
        const QColor colour(0x3c, 0x46, 0x52, threads ? 0xa0 : 0xc0);
        painter.setPen(
            QPen(colour, threads ? 0.6 * width : width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(fit.map(pathOf(entities, threads)));
    }
}

} // namespace

QImage paintSolid(const Solid& solid, const Camera& camera, int width, int height)
{
    const std::vector<dwg::Entity> lines = drawView(solid, camera);
    const dwg::Extents extents = dwg::extentsOf(lines).value();
    const QTransform fit = fitTo(extents, width, height);
    TrianglePainter painter(width, height, fit, camera);
    for (const Triangle& triangle :
         trianglesOf(solid, Deviation * std::max(extents.width(), extents.height())))
        painter.paint(triangle);
    QImage picture = painter.picture();
    drawLines(picture, lines, fit);
    return picture;
}

} // namespace devcatalog
