// Writes drawings as DWG files and, beside each, what it was meant to hold as JSON, for a reader that is not
// ours. Usage: dwg_samples FOLDER

#include "devcatalog/drawings/DwgWriter.h"
#include "devcatalog/drawings/PartDrawing.h"
#include "devcatalog/parts/PartCatalog.h"
#include "tests/devcatalog/SampleDrawings.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <cstdio>
#include <exception>
#include <set>
#include <stdexcept>
#include <utility>

using namespace devcatalog;

namespace
{

QJsonArray toJson(Point2 point)
{
    return {point.x, point.y};
}

QString layerName(LineKind kind)
{
    switch (kind) {
    case LineKind::Outline:
        return "Outline";
    case LineKind::Hidden:
        return "Hidden";
    case LineKind::Centre:
        return "Centre";
    }
    throw std::invalid_argument("A line kind without a layer");
}

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
        if (!polyline.closed) {
            bulges.removeLast();
        }
        return {{"kind", "polyline"}, {"closed", polyline.closed}, {"points", points}, {"bulges", bulges}};
    }
};

QJsonObject toJson(const Entity& entity)
{
    QJsonObject json = std::visit(ShapeToJson(), entity.shape);
    json["layer"] = layerName(entity.kind);
    return json;
}

QByteArray toJson(const Drawing& drawing)
{
    QJsonArray entities;
    for (const Entity& entity : drawing.entities) {
        entities.append(toJson(entity));
    }
    return QJsonDocument({{"title", QString::fromStdString(drawing.title)}, {"entities", entities}}).toJson();
}

class SampleFolder
{
public:
    explicit SampleFolder(const QString& path) : m_folder(path)
    {
        // Files of a part that is no longer in the catalog must not be compared again.
        if (!m_folder.removeRecursively() || !m_folder.mkpath(".")) {
            throw std::runtime_error("Cannot make the folder " + path.toStdString());
        }
    }

    void write(const QString& name, const Drawing& drawing)
    {
        writeFile(name + ".dwg", QByteArray::fromStdString(writeDwg(drawing)));
        writeFile(name + ".json", toJson(drawing));
    }

private:
    void writeFile(const QString& name, const QByteArray& bytes)
    {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
            throw std::runtime_error("Cannot write " + file.fileName().toStdString());
        }
    }

    QDir m_folder;
};

constexpr std::array<const char*, 12> views = {
    "eDrawingView_PREDEFINED", "eDrawingView_4VIEW",     "eDrawingView_MULTI",    "eDrawingView_FRONT",
    "eDrawingView_TOP",        "eDrawingView_RIGHT",     "eDrawingView_BACK",     "eDrawingView_BOTTOM",
    "eDrawingView_LEFT",       "eDrawingView_ISOMETRIC", "eDrawingView_DIMETRIC", "eDrawingView_TRIMETRIC"};

/// One drawing of every family in every view.
void writeParts(SampleFolder& folder)
{
    const PartCatalog catalog;
    std::set<std::pair<std::string, std::string>> written;
    for (const Part& part : catalog.parts()) {
        for (const char* const view : views) {
            if (written.count({part.family, view}) != 0) {
                continue;
            }
            if (const auto drawing = drawPart(part, part.configurations.front(), view)) {
                folder.write(QString::fromStdString(part.family) + '-' + view, *drawing);
                written.insert({part.family, view});
            }
        }
    }
    if (written.empty()) {
        throw std::runtime_error("The catalog has no drawings");
    }
}

} // namespace

int main(int argc, char* argv[])
{
    try {
        if (argc != 2) {
            throw std::invalid_argument("Usage: dwg_samples FOLDER");
        }
        SampleFolder folder(QFile::decodeName(argv[1]));
        for (const test::SampleDrawing& sample : test::sampleDrawings()) {
            folder.write(QString::fromStdString(sample.name), sample.drawing);
        }
        writeParts(folder);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
