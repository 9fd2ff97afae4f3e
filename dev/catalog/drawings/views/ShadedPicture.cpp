#include "dev/catalog/drawings/views/ShadedPicture.h"

#include "dev/catalog/drawings/views/HiddenLines.h"

#include <QColor>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace devcatalog
{

namespace
{

constexpr int oversampling = 3;
constexpr double margin = 0.05;

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

/// From part to pixels, with y down.
struct Fit {
    Camera camera;
    double scale = 1;
    dwg::Point2 offset;

    QPointF map(const Vector3& point) const
    {
        const dwg::Point2 flat = camera.project(point);
        return {scale * flat.x + offset.x, offset.y - scale * flat.y};
    }
};

Fit fitTo(const std::vector<Face>& faces, const Camera& camera, int width, int height)
{
    dwg::Point2 lower = camera.project(faces.front().loops.front().front());
    dwg::Point2 upper = lower;
    for (const Face& face : faces)
        for (const auto& loop : face.loops)
            for (const Vector3& corner : loop) {
                const dwg::Point2 point = camera.project(corner);
                lower = {std::min(lower.x, point.x), std::min(lower.y, point.y)};
                upper = {std::max(upper.x, point.x), std::max(upper.y, point.y)};
            }
    const double scale =
        (1 - 2 * margin) * std::min(width / (upper.x - lower.x), height / (upper.y - lower.y));
    return {camera,
            scale,
            {width / 2.0 - scale * (lower.x + upper.x) / 2, height / 2.0 + scale * (lower.y + upper.y) / 2}};
}

/// Fills faces in an image larger than the picture, nearer ones over farther ones.
class FacePainter
{
public:
    FacePainter(int width, int height, const Fit& fit)
        : m_image(width * oversampling, height * oversampling, QImage::Format_ARGB32),
          m_fit(fit),
          m_depths(static_cast<std::size_t>(m_image.width()) * static_cast<std::size_t>(m_image.height()),
                   -std::numeric_limits<double>::infinity())
    {
        m_image.fill(Qt::transparent);
    }

    void paint(const Face& face, const QColor& colour)
    {
        const double facing = dot(face.normal, m_fit.camera.toward);
        if (facing < 1e-3)
            return;
        m_colour = shaded(face.normal, colour);
        // Depth along a row of pixels, and the way it changes from row to row.
        const Vector3& corner = face.loops.front().front();
        m_slopeX = -dot(face.normal, m_fit.camera.right) / facing / (m_fit.scale * oversampling);
        m_slopeY = dot(face.normal, m_fit.camera.up) / facing / (m_fit.scale * oversampling);
        const QPointF at = oversampling * m_fit.map(corner);
        m_depthAtOrigin = m_fit.camera.depth(corner) - m_slopeX * at.x() - m_slopeY * at.y();
        fill(face);
    }

    QImage picture() const
    {
        return m_image.scaled(m_image.width() / oversampling, m_image.height() / oversampling,
                              Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }

private:
    QRgb shaded(const Vector3& normal, const QColor& colour) const
    {
        // The light comes over the viewer's left shoulder.
        const Camera& camera = m_fit.camera;
        const Vector3 light = normalized(-0.45 * camera.right + 0.65 * camera.up + 0.75 * camera.toward);
        const double brightness = 0.52 + 0.5 * std::max(0.0, dot(normal, light));
        const auto channel = [brightness](int value) {
            return std::min(255, static_cast<int>(brightness * value));
        };
        return qRgb(channel(colour.red()), channel(colour.green()), channel(colour.blue()));
    }

    void fill(const Face& face)
    {
        std::vector<std::vector<QPointF>> loops;
        double top = m_image.height();
        double bottom = 0;
        for (const auto& loop : face.loops) {
            loops.emplace_back();
            for (const Vector3& corner : loop) {
                loops.back().push_back(oversampling * m_fit.map(corner));
                top = std::min(top, loops.back().back().y());
                bottom = std::max(bottom, loops.back().back().y());
            }
        }
        const int last = std::min(m_image.height() - 1, static_cast<int>(bottom));
        for (int row = std::max(0, static_cast<int>(top)); row <= last; ++row)
            fillRow(row, crossings(loops, row + 0.5));
    }

    static std::vector<double> crossings(const std::vector<std::vector<QPointF>>& loops, double y)
    {
        std::vector<double> result;
        for (const auto& loop : loops)
            for (std::size_t i = 0, previous = loop.size() - 1; i < loop.size(); previous = i++) {
                const QPointF& a = loop[previous];
                const QPointF& b = loop[i];
                if ((a.y() > y) != (b.y() > y))
                    result.push_back(a.x() + (b.x() - a.x()) * (y - a.y()) / (b.y() - a.y()));
            }
        std::sort(result.begin(), result.end());
        return result;
    }

    void fillRow(int row, const std::vector<double>& bounds)
    {
        auto* pixels = reinterpret_cast<QRgb*>(m_image.scanLine(row));
        double* depths = m_depths.data() + static_cast<std::ptrdiff_t>(row) * m_image.width();
        for (std::size_t i = 0; i + 1 < bounds.size(); i += 2) {
            const int first = std::max(0, static_cast<int>(std::ceil(bounds[i] - 0.5)));
            const int last =
                std::min(m_image.width() - 1, static_cast<int>(std::ceil(bounds[i + 1] - 0.5)) - 1);
            for (int x = first; x <= last; ++x) {
                const double depth = m_depthAtOrigin + m_slopeX * (x + 0.5) + m_slopeY * (row + 0.5);
                if (depth <= depths[x])
                    continue;
                depths[x] = depth;
                pixels[x] = m_colour;
            }
        }
    }

    QImage m_image;
    Fit m_fit;
    std::vector<double> m_depths;
    QRgb m_colour = 0;
    double m_slopeX = 0;
    double m_slopeY = 0;
    double m_depthAtOrigin = 0;
};

void drawEdges(QImage& image, const Solid& solid, const Fit& fit)
{
    QPainterPath path;
    for (const Stroke& stroke : findStrokes(solid, fit.camera).strokes) {
        if (stroke.hidden)
            continue;
        const std::vector<double> samples = samplesOf(stroke.curve);
        path.moveTo(fit.map(pointAt(stroke.curve, samples.front())));
        for (std::size_t i = 1; i < samples.size(); ++i)
            path.lineTo(fit.map(pointAt(stroke.curve, samples[i])));
    }
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const double width = std::clamp(std::min(image.width(), image.height()) / 110.0, 0.7, 2.0);
    painter.setPen(QPen(QColor(0x3c, 0x46, 0x52, 0xc0), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
}

} // namespace

QImage paintSolid(const Solid& solid, const Camera& camera, int width, int height)
{
    std::vector<std::vector<Face>> faces;
    std::vector<Face> all;
    for (const Member& member : solid.members) {
        faces.emplace_back();
        member.body->appendFaces(faces.back(), camera.toward);
        all.insert(all.end(), faces.back().begin(), faces.back().end());
    }
    const Fit fit = fitTo(all, camera, width, height);
    FacePainter painter(width, height, fit);
    for (std::size_t i = 0; i < faces.size(); ++i)
        for (const Face& face : faces[i])
            painter.paint(face, colourOf(solid.members[i].material));
    QImage picture = painter.picture().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    drawEdges(picture, solid, fit);
    return picture;
}

} // namespace devcatalog
