#include "dev/host/drawing/DwgReader.h"

#include <QFile>
#include <QFileInfo>

#include <cpl_error.h>
#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <cmath>
#include <memory>

namespace devhost
{

namespace
{

constexpr qint64 MaximumFileSize = qint64{64} * 1024 * 1024;
constexpr int MaximumPoints = 1000 * 1000;
constexpr double CircleStepDegrees = 2.0;
constexpr double LargestCoordinate = 1e12; // Far beyond any drawing; damaged files give such numbers.

/// Keeps the library from writing to the console while it lives.
class QuietGdal
{
public:
    QuietGdal() { CPLPushErrorHandler(CPLQuietErrorHandler); }
    ~QuietGdal() { CPLPopErrorHandler(); }
    QuietGdal(const QuietGdal&) = delete;
    QuietGdal& operator=(const QuietGdal&) = delete;
};

struct CloseDataset {
    void operator()(GDALDataset* dataset) const { GDALClose(dataset); }
};
using Dataset = std::unique_ptr<GDALDataset, CloseDataset>;

/// @return why the file is not a drawing that can be read; empty when it may be one.
QString findProblem(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QString("it cannot be opened");
    if (file.size() == 0)
        return QString("it is empty");
    if (file.size() > MaximumFileSize)
        return QString("it is larger than %1 MB").arg(MaximumFileSize / 1024 / 1024);
    const QByteArray release = file.read(6);
    if (!release.startsWith("AC10"))
        return QString("it is not a DWG file");
    if (release != "AC1015")
        return QString("it is of release %1, not AC1015").arg(QString::fromLatin1(release));
    return QString();
}

Dataset openDataset(const QString& path)
{
    static const bool registered = (GDALAllRegister(), true);
    Q_UNUSED(registered)
    const char* const drivers[] = {"CAD", nullptr};
    return Dataset(GDALDataset::Open(path.toUtf8().constData(), GDAL_OF_VECTOR, drivers));
}

LineType lineTypeOfLayer(const QString& name)
{
    if (name.contains("hidden", Qt::CaseInsensitive))
        return LineType::Hidden;
    if (name.contains("centre", Qt::CaseInsensitive) || name.contains("center", Qt::CaseInsensitive))
        return LineType::Centre;
    return LineType::Continuous;
}

/// @param color the driver's "#RRGGBBAA".
quint32 rgbOf(const QString& color)
{
    bool valid = false;
    const quint32 rgb = color.mid(1, 6).toUInt(&valid, 16);
    return valid ? rgb : BlockPath::Foreground;
}

bool isUsable(double coordinate)
{
    return std::isfinite(coordinate) && std::abs(coordinate) < LargestCoordinate;
}

/// @return the points of a curve, multiplied by @p factor; none when it is not one, or has a coordinate that
/// cannot be used.
QVector<QPointF> pointsOf(const OGRGeometry& geometry, double factor, int most)
{
    const std::unique_ptr<OGRGeometry> linear(geometry.getLinearGeometry(CircleStepDegrees));
    const auto* line = dynamic_cast<const OGRLineString*>(linear.get());
    if (line == nullptr || line->getNumPoints() < 2 || line->getNumPoints() > most)
        return {};
    QVector<QPointF> points;
    points.reserve(line->getNumPoints());
    for (int i = 0; i < line->getNumPoints(); ++i) {
        const QPointF point = QPointF(line->getX(i), line->getY(i)) * factor;
        if (!isUsable(point.x()) || !isUsable(point.y()))
            return {};
        points.append(point);
    }
    return points;
}

void appendLayer(OGRLayer& layer, double factor, BlockGeometry& block, int& pointsLeft)
{
    const LineType lineType = lineTypeOfLayer(QString::fromUtf8(layer.GetName()));
    layer.ResetReading();
    while (const OGRFeatureUniquePtr feature{layer.GetNextFeature()}) {
        const OGRGeometry* geometry = feature->GetGeometryRef();
        if (geometry == nullptr)
            continue;
        const QVector<QPointF> points = pointsOf(*geometry, factor, pointsLeft);
        if (points.isEmpty())
            continue;
        pointsLeft -= points.size();
        const QString color = QString::fromUtf8(feature->GetFieldAsString("color"));
        block.paths.append(BlockPath{points, lineType, rgbOf(color)});
    }
}

DrawingUnit unitOf(GDALDataset& dataset)
{
    const char* const insUnits = dataset.GetMetadataItem("$INSUNITS");
    return drawingUnitOf(QByteArray(insUnits).toInt()); // No unit for what is no number.
}

BlockGeometry readLayers(GDALDataset& dataset, double factor)
{
    BlockGeometry block;
    int pointsLeft = MaximumPoints;
    for (int i = 0; i < dataset.GetLayerCount(); ++i)
        appendLayer(*dataset.GetLayer(i), factor, block, pointsLeft);
    return block;
}

} // namespace

DwgContent readDwg(const QString& file, DrawingUnit unit)
{
    const QString name = QFileInfo(file).fileName();
    const QString problem = findProblem(file);
    if (!problem.isEmpty())
        return {std::nullopt, QString("Cannot read %1: %2.").arg(name, problem), {}, 1.0};

    const QuietGdal quiet;
    const Dataset dataset = openDataset(file);
    if (!dataset)
        return {std::nullopt, QString("Cannot read %1: it is damaged or cut short.").arg(name), {}, 1.0};
    const DrawingUnit own = unitOf(*dataset);
    const double factor = unitFactor(own, unit);
    BlockGeometry block = readLayers(*dataset, factor);
    const QString remark = block.paths.isEmpty() ? QString("%1 draws nothing.").arg(name) : QString();
    return {std::move(block), remark, own, factor};
}

} // namespace devhost
