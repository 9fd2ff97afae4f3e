#include "tests/devcatalog/GdalDrawing.h"

#include <cpl_vsi.h>
#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <memory>

namespace test
{

namespace
{

/// A file in GDAL's memory for as long as this lives.
class MemoryFile
{
public:
    explicit MemoryFile(std::string bytes) : m_bytes(std::move(bytes))
    {
        VSIFCloseL(
            VSIFileFromMemBuffer(path(), reinterpret_cast<GByte*>(m_bytes.data()), m_bytes.size(), FALSE));
    }
    ~MemoryFile() { VSIUnlink(path()); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    const char* path() const { return "/vsimem/drawing.dwg"; }

private:
    std::string m_bytes;
};

QVector<devcatalog::Point2> pointsOf(const OGRGeometry* geometry)
{
    QVector<devcatalog::Point2> points;
    const auto* const curve = dynamic_cast<const OGRSimpleCurve*>(geometry);
    for (int index = 0; curve != nullptr && index < curve->getNumPoints(); ++index) {
        points.append({curve->getX(index), curve->getY(index)});
    }
    return points;
}

GdalDrawing::Feature toFeature(const OGRFeature& feature)
{
    return {QString::fromUtf8(feature.GetFieldAsString("cadgeom_type")),
            QString::fromUtf8(feature.GetFieldAsString("color")), pointsOf(feature.GetGeometryRef())};
}

} // namespace

GdalDrawing GdalDrawing::read(const std::string& bytes)
{
    GDALAllRegister();
    const MemoryFile file(bytes);
    const char* const drivers[] = {"CAD", nullptr};
    const std::unique_ptr<GDALDataset> dataset(
        GDALDataset::Open(file.path(), GDAL_OF_VECTOR | GDAL_OF_READONLY, drivers));
    GdalDrawing drawing;
    if (!dataset) {
        return drawing;
    }
    drawing.opened = true;
    for (OGRLayer* const layer : dataset->GetLayers()) {
        for (const auto& feature : *layer) {
            drawing.layers[QString::fromUtf8(layer->GetName())].append(toFeature(*feature));
        }
    }
    for (char** item = dataset->GetMetadata(); item != nullptr && *item != nullptr; ++item) {
        const QString text = QString::fromUtf8(*item);
        drawing.headerVariables.insert(text.section('=', 0, 0), text.section('=', 1));
    }
    return drawing;
}

} // namespace test
