#include "dev/host/drawing/DxfWriter.h"

#include "dev/host/drawing/BlockTransform.h"

#include <QPolygonF>

#include <cpl_error.h>
#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <memory>

namespace devhost
{

namespace
{

struct LineStyle {
    const char* name;    // Of layer and linetype.
    const char* pattern; // Dashes and gaps in parts of the drawing's unit, as OGR's style strings give them.
};

LineStyle styleOf(LineType lineType)
{
    switch (lineType) {
    case LineType::Hidden:
        return {"Hidden", ",p:\"0.25g 0.125g\""};
    case LineType::Centre:
        return {"Centre", ",p:\"1.25g 0.25g 0.25g 0.25g\""};
    case LineType::Continuous:
        break;
    }
    return {"Continuous", ""};
}

void writePath(OGRLayer& layer, const BlockPath& path, const QTransform& transform)
{
    OGRLineString line;
    for (const QPointF& point : transform.map(QPolygonF(path.points)))
        line.addPoint(point.x(), point.y());

    const LineStyle style = styleOf(path.lineType);
    const OGRFeatureUniquePtr feature(OGRFeature::CreateFeature(layer.GetLayerDefn()));
    feature->SetGeometry(&line);
    feature->SetField("Layer", style.name);
    feature->SetField("Linetype", style.name);
    const QString pen = QString("PEN(c:#%1%2)").arg(path.rgb, 6, 16, QChar('0')).arg(style.pattern);
    feature->SetStyleString(pen.toUtf8().constData());
    if (layer.CreateFeature(feature.get()) != OGRERR_NONE)
        CPLError(CE_Failure, CPLE_AppDefined, "A line cannot be written");
}

/// The driver only knows headers of files.
QByteArray withUnit(const QByteArray& dxf, DrawingUnit unit)
{
    QByteArray changed = dxf;
    const QByteArray variable = "$INSUNITS\n 70\n";
    const int value = changed.indexOf(variable) + variable.size();
    if (value >= variable.size())
        changed.replace(value, changed.indexOf('\n', value) - value,
                        QByteArray::number(static_cast<int>(unit)).rightJustified(6));
    return changed;
}

/// @return whether the file is complete.
bool writeFile(const char* path, const PlacedBlocks& drawing)
{
    GDALAllRegister();
    GDALDriver* const driver = GetGDALDriverManager()->GetDriverByName("DXF");
    if (driver == nullptr)
        return false;
    CPLErrorReset();
    GDALDataset* const dataset = driver->Create(path, 0, 0, 0, GDT_Unknown, nullptr);
    if (dataset == nullptr)
        return false;
    OGRLayer* const layer = dataset->CreateLayer("entities");
    for (const auto& block : drawing.blocks().objects())
        for (const BlockPath& line : block->geometry().paths)
            writePath(*layer, line, blockTransform(block->placement()));
    GDALClose(dataset); // Writes most of the file.
    return CPLGetLastErrorType() < CE_Failure;
}

} // namespace

QByteArray writeDxf(const PlacedBlocks& drawing)
{
    const char* const path = "/vsimem/copy.dxf"; // In memory; whoever saves it sees what the disk says.
    CPLPushErrorHandler(CPLQuietErrorHandler);
    const bool isComplete = writeFile(path, drawing);
    CPLPopErrorHandler();
    vsi_l_offset size = 0;
    GByte* const bytes = VSIGetMemFileBuffer(path, &size, TRUE);
    QByteArray dxf;
    if (isComplete && bytes != nullptr)
        dxf = withUnit(QByteArray(reinterpret_cast<const char*>(bytes), static_cast<int>(size)),
                       drawing.unit());
    VSIFree(bytes);
    return dxf;
}

} // namespace devhost
