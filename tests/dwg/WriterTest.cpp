#include "dev/dwg/Writer.h"
#include "dev/dwg/DrawingExtents.h"
#include "dev/dwg/Text.h"
#include "tests/dwg/SampleDrawings.h"

#include <QCryptographicHash>
#include <QDir>
#include <QTemporaryFile>
#include <QTest>

#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <cmath>
#include <limits>
#include <stdexcept>

using namespace dwg;

Q_DECLARE_METATYPE(dwg::Drawing)

namespace
{

/// The standard Layers in the order of the line kinds, each with its colour.
const QPair<QString, QString> Layers[] = {
    {"Outline", "#FFFFFFFF"}, {"Hidden", "#828282FF"}, {"Centre", "#FF0000FF"}, {"Thread", "#00FF00FF"}};

/// Whether the driver shows an entity where it is. It cuts off arcs, in steps of four degrees, and rounds
/// those that are nearly straight.
bool reachesAsFar(const OGREnvelope& shown, const Extents& meant)
{
    const double cutOff = 0.02 * std::max({1.0, meant.width(), meant.height()});
    return std::abs(shown.MinX - meant.min.x) < cutOff && std::abs(shown.MinY - meant.min.y) < cutOff &&
           std::abs(shown.MaxX - meant.max.x) < cutOff && std::abs(shown.MaxY - meant.max.y) < cutOff;
}

} // namespace

class WriterTest : public QObject
{
    Q_OBJECT

private slots:
    void codePage();
    void refusesWhatNoReaderTakes();
    void bytesAreThoseThatReadersAccepted();
    void gdalReadsEveryDrawing_data();
    void gdalReadsEveryDrawing();
};

void WriterTest::codePage()
{
    const auto encoded = [](const char* utf8) {
        return QByteArray::fromStdString(toWindows1252(utf8, '?')).toHex(' ');
    };
    QCOMPARE(encoded("Größe €–Ÿ"), QByteArray("47 72 f6 df 65 20 80 96 9f"));
    QCOMPARE(encoded("Вa日😀\t\x7f"), QByteArray("3f 61 3f 3f 3f 3f"));
    // Broken UTF-8: a byte that begins nothing, a character cut off by another, one cut off by the end.
    QCOMPARE(encoded("\xFF"
                     "a\xC3"
                     "b\xE2\x82"),
             QByteArray("3f 61 3f 62 3f 3f"));
}

void WriterTest::refusesWhatNoReaderTakes()
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    const auto refuses = [](const Shape& shape, const char* reason, std::size_t count = 1) {
        try {
            writeDwg({"", std::vector<Entity>(count, {LineKind::Outline, shape})});
        } catch (const std::invalid_argument& error) {
            return QString(error.what()).contains(reason);
        }
        return false;
    };
    QVERIFY(refuses(LineSegment{{0, 0}, {nan, 0}}, "x coordinate"));
    QVERIFY(refuses(LineSegment{{0, 0}, {0, -1.1e9}}, "1e9"));
    QVERIFY(refuses(Circle{{0, 0}, 0}, "radius"));
    QVERIFY(refuses(Circle{{0, 0}, 1.1e9}, "1e9"));
    QVERIFY(refuses(Polyline{{{{0, 0}, 0}}, true}, "vertices"));
    QVERIFY(refuses(Polyline{std::vector<PolylineVertex>(1001), false}, "vertices"));
    QVERIFY(refuses(Polyline{{{{0, 0}, nan}, {{1, 0}, 0}}, false}, "bulge"));
    QVERIFY(refuses(Polyline{{{{0, 0}, 1e7}, {{1, 0}, 0}}, false}, "bulge"));
    QVERIFY(refuses(Polyline{{{{0, 0}, 9e5}, {{1e4, 0}, 0}}, false}, "1e9"));
    QVERIFY(refuses(LineSegment{}, "million", 500'001));
}

/// About half of the format's fields are shown by no reader that we have. Should this fail on purpose, open
/// the drawing in other CAD programs before the new value goes in here.
void WriterTest::bytesAreThoseThatReadersAccepted()
{
    const QByteArray bytes = QByteArray::fromStdString(writeDwg(test::plate()));
    QCOMPARE(QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex(),
             QByteArray("26d89a8b0dff7596e2deaaf1b1481a5950e58c68"));
}

void WriterTest::gdalReadsEveryDrawing_data()
{
    QTest::addColumn<Drawing>("drawing");
    for (const test::SampleDrawing& sample : test::sampleDrawings())
        QTest::newRow(sample.name.c_str()) << sample.drawing;
}

void WriterTest::gdalReadsEveryDrawing()
{
    QFETCH(Drawing, drawing);
    QTemporaryFile file(QDir::tempPath() + "/XXXXXX.dwg");
    QVERIFY(file.open());
    file.write(QByteArray::fromStdString(writeDwg(drawing)));
    file.close();
    GDALAllRegister();
    const char* const drivers[] = {"CAD", nullptr};
    const GDALDatasetUniquePtr read(
        GDALDataset::Open(qPrintable(file.fileName()), GDAL_OF_VECTOR | GDAL_OF_READONLY, drivers));
    QVERIFY(read != nullptr);
    QCOMPARE(read->GetMetadataItem("$INSUNITS"), drawing.unit == Unit::Millimetre ? "4" : "5");

    std::size_t shown = 0;
    for (OGRLayer* const layer : read->GetLayers())
        shown += static_cast<std::size_t>(layer->GetFeatureCount());
    QCOMPARE(shown, drawing.entities.size());
    for (const Entity& entity : drawing.entities) {
        const auto& [name, colour] = Layers[static_cast<int>(entity.kind)];
        OGRLayer* const layer = read->GetLayerByName(qPrintable(name));
        QVERIFY2(layer, qPrintable(name));
        const OGRFeatureUniquePtr feature(layer->GetNextFeature());
        QVERIFY2(feature, qPrintable(name));
        QCOMPARE(QString(feature->GetFieldAsString("color")), colour);
        OGREnvelope reach;
        feature->GetGeometryRef()->getEnvelope(&reach);
        QVERIFY(reachesAsFar(reach, extentsOf({entity}).value()));
    }
}

QTEST_GUILESS_MAIN(WriterTest)
#include "WriterTest.moc"
