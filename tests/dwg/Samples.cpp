// Writes drawings as DWG files and, beside each, what it was meant to hold as JSON, for a reader that is not
// ours. Usage: dwg_samples FOLDER

#include "dev/dwg/Writer.h"
#include "tests/dwg/SampleDrawings.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <cstdio>
#include <exception>
#include <stdexcept>

using namespace dwg;

namespace
{

QJsonArray toJson(Point2 point)
{
    return {point.x, point.y};
}

constexpr std::array<const char*, 4> LayerNames = {"Outline", "Hidden", "Centre", "Thread"}; ///< by kind

struct ShapeToJson {
    QJsonObject operator()(const LineSegment& line) const
    {
        return {{"kind", "line"}, {"from", toJson(line.from)}, {"to", toJson(line.to)}};
    }

    QJsonObject operator()(const Circle& circle) const
    {
        return {{"kind", "circle"}, {"centre", toJson(circle.centre)}, {"radius", circle.radius}};
    }

    /// Points, and the bulges of the segments between them; a closed line has one segment more.
    QJsonObject operator()(const Polyline& polyline) const
    {
        QJsonArray points;
        QJsonArray bulges;
        for (const PolylineVertex& vertex : polyline.vertices) {
            points.append(toJson(vertex.point));
            bulges.append(vertex.bulge);
        }
        if (!polyline.closed)
            bulges.removeLast();
        return {{"kind", "polyline"}, {"closed", polyline.closed}, {"points", points}, {"bulges", bulges}};
    }
};

QJsonObject toJson(const Entity& entity)
{
    QJsonObject json = std::visit(ShapeToJson(), entity.shape);
    json["layer"] = LayerNames.at(static_cast<std::size_t>(entity.kind));
    return json;
}

QByteArray toJson(const Drawing& drawing)
{
    QJsonArray entities;
    for (const Entity& entity : drawing.entities)
        entities.append(toJson(entity));
    return QJsonDocument({{"title", QString::fromStdString(drawing.title)},
                          {"entities", entities},
                          {"unit", drawing.unit == Unit::Millimetre ? "mm" : "cm"},
                          {"linetypeScale", drawing.linetypeScale}})
        .toJson();
}

void writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        throw std::runtime_error("Cannot write " + path.toStdString());
}

void writeSamples(const QString& path)
{
    QDir folder(path);
    // Files of a part that is no longer in the catalog must not be compared again.
    if (!folder.removeRecursively() || !folder.mkpath("."))
        throw std::runtime_error("Cannot make the folder " + path.toStdString());
    for (const test::SampleDrawing& sample : test::sampleDrawings()) {
        const QString file = folder.filePath(QString::fromStdString(sample.name));
        writeFile(file + ".dwg", QByteArray::fromStdString(writeDwg(sample.drawing)));
        writeFile(file + ".json", toJson(sample.drawing));
    }
}

} // namespace

int main(int argc, char* argv[])
{
    try {
        if (argc != 2)
            throw std::invalid_argument("Usage: dwg_samples FOLDER");
        writeSamples(QFile::decodeName(argv[1]));
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
