#include "devcatalog/drawings/DwgWriter.h"
#include "devcatalog/drawings/BitWriter.h"
#include "devcatalog/drawings/DwgCrc.h"
#include "devcatalog/drawings/DwgEntities.h"
#include "devcatalog/drawings/DwgText.h"
#include "tests/devcatalog/GdalDrawing.h"
#include "tests/devcatalog/SampleDrawings.h"

#include <QCryptographicHash>
#include <QtTest>

#include <cmath>
#include <functional>
#include <limits>
#include <stdexcept>

using namespace devcatalog;
using test::GdalDrawing;
using test::SampleDrawing;
using test::sampleDrawing;

Q_DECLARE_METATYPE(std::function<void(BitWriter&)>)
Q_DECLARE_METATYPE(Shape)
Q_DECLARE_METATYPE(DwgLayerStyles)

namespace
{

QByteArray hex(const std::string& bytes)
{
    return QByteArray::fromStdString(bytes).toHex(' ');
}

Drawing drawingOf(const Shape& shape)
{
    return {"", {{LineKind::Outline, shape}}};
}

/// What an invalid_argument says, or nothing when the drawing was written.
QString refusal(const Drawing& drawing, const DwgLayerStyles& styles = standardLayerStyles())
{
    try {
        writeDwg(drawing, styles);
        return {};
    } catch (const std::invalid_argument& error) {
        return QString::fromUtf8(error.what());
    }
}

struct Bounds {
    double left = std::numeric_limits<double>::infinity();
    double bottom = left;
    double right = -left;
    double top = -left;

    explicit Bounds(const QVector<Point2>& points)
    {
        for (const Point2 point : points) {
            left = std::min(left, point.x);
            bottom = std::min(bottom, point.y);
            right = std::max(right, point.x);
            top = std::max(top, point.y);
        }
    }

    /// Within what the driver's steps of four degrees cut off an arc.
    bool isNear(double l, double b, double r, double t) const
    {
        constexpr double cutOff = 2e-3;
        return std::abs(left - l) < cutOff && std::abs(bottom - b) < cutOff && std::abs(right - r) < cutOff &&
               std::abs(top - t) < cutOff;
    }
};

} // namespace

class DwgWriterTest : public QObject
{
    Q_OBJECT

private slots:
    void checkSum();
    void bitCodes_data();
    void bitCodes();
    void lineEntity();
    void codePage();
    void refusesShapes_data();
    void refusesShapes();
    void refusesTooManyPoints();
    void refusesLayerStyles_data();
    void refusesLayerStyles();
    void acceptsOtherLayerStyles();
    void equalDrawingsGiveEqualBytes();
    void bytesAreThoseThatReadersAccepted();
    void gdalReadsHeaderVariables_data();
    void gdalReadsHeaderVariables();
    void gdalReadsLayersAndColours();
    void gdalReadsLinesAndCircles();
    void gdalReadsArcs();
    void gdalReadsManyEntities();
};

void DwgWriterTest::checkSum()
{
    QCOMPARE(dwgCrc("123456789", 0), std::uint16_t(0xBB3D));
    QCOMPARE(dwgCrc("123456789", 0xC0C1), std::uint16_t(0x7E6C));
}

void DwgWriterTest::bitCodes_data()
{
    using Write = std::function<void(BitWriter&)>;
    QTest::addColumn<Write>("write");
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char* name, const QByteArray& bytes, const Write& write) {
        QTest::newRow(name) << write << bytes;
    };
    row("bits", "b0", [](BitWriter& w) {
        w.bit(true);
        w.bitPair(1);
        w.bit(true);
    });
    row("raw short over byte borders", "9a 09 00", [](BitWriter& w) {
        w.bit(true);
        w.rawShort(0x1234);
    });
    row("short 0", "80", [](BitWriter& w) { w.bitShort(0); });
    row("short 5", "41 40", [](BitWriter& w) { w.bitShort(5); });
    row("short 256", "c0", [](BitWriter& w) { w.bitShort(256); });
    row("short 257", "00 40 40", [](BitWriter& w) { w.bitShort(257); });
    row("short -2", "3f bf c0", [](BitWriter& w) { w.bitShort(-2); });
    row("long 0", "80", [](BitWriter& w) { w.bitLong(0); });
    row("long 255", "7f c0", [](BitWriter& w) { w.bitLong(255); });
    row("long 256", "00 00 40 00 00", [](BitWriter& w) { w.bitLong(256); });
    row("double 0", "80", [](BitWriter& w) { w.bitDouble(0.0); });
    row("double -0", "80", [](BitWriter& w) { w.bitDouble(-0.0); });
    row("double 1", "40", [](BitWriter& w) { w.bitDouble(1.0); });
    row("double 2", "00 00 00 00 00 00 00 10 00", [](BitWriter& w) { w.bitDouble(2.0); });
    row("raw double -0", "00 00 00 00 00 00 00 00", [](BitWriter& w) { w.rawDouble(-0.0); });
    row("double as default", "00", [](BitWriter& w) { w.defaultDouble(3.0, 3.0); });
    row("double not as default", "c0 00 00 00 00 00 00 10 00",
        [](BitWriter& w) { w.defaultDouble(2.0, 3.0); });
    row("text", "40 90 50 80", [](BitWriter& w) { w.text("AB"); });
    row("no handle", "50", [](BitWriter& w) { w.handle(hardPointer(handles::none)); });
    row("handle", "22 01 23", [](BitWriter& w) { w.handle(softOwner(0x123)); });
    row("modular char 127", "7f", [](BitWriter& w) { w.modularChar(127); });
    row("modular char 128", "80 01", [](BitWriter& w) { w.modularChar(128); });
    row("signed modular char 63", "3f", [](BitWriter& w) { w.signedModularChar(63); });
    row("signed modular char 64", "c0 00", [](BitWriter& w) { w.signedModularChar(64); });
    row("signed modular char -1", "41", [](BitWriter& w) { w.signedModularChar(-1); });
    row("signed modular char -64", "c0 40", [](BitWriter& w) { w.signedModularChar(-64); });
    row("modular short", "ff 7f", [](BitWriter& w) { w.modularShort(0x7FFF); });
    row("modular short of two words", "00 80 01 00", [](BitWriter& w) { w.modularShort(0x8000); });
    row("appended bits", "a8", [](BitWriter& w) {
        BitWriter other;
        other.bits({false, true, false, true});
        w.bit(true);
        w.append(other);
    });
}

void DwgWriterTest::bitCodes()
{
    QFETCH(std::function<void(BitWriter&)>, write);
    QFETCH(QByteArray, bytes);
    BitWriter writer;
    write(writer);
    QCOMPARE(hex(writer.bytes()), bytes);
}

/// Byte for byte what a CAD program wrote for this line.
void DwgWriterTest::lineEntity()
{
    DwgEntityPlace place;
    place.handle = 0x43;
    place.layer = 0x34;
    place.betweenNeighbours = true;
    const DwgObject line = shapeEntity(LineSegment{{-37.5, -45.5}, {-37.5, -29.5}}, place);
    QCOMPARE(hex(line.record()),
             QByteArray("27 00 44 c6 c0 40 00 00 50 e5 74 21 d8 00 00 00 00 06 02 16 00 00 00 00 00 01 80 8d "
                        "81 80 00 00 00 00 40 1e e0 66 0a 26 80 3d 29"));
}

void DwgWriterTest::codePage()
{
    const auto encoded = [](const char* utf8) { return hex(toWindows1252(utf8, '?')); };
    QCOMPARE(encoded("Az ~"), QByteArray("41 7a 20 7e"));
    QCOMPARE(encoded("Größe €–Ÿ"), QByteArray("47 72 f6 df 65 20 80 96 9f"));
    QCOMPARE(encoded("Вa日😀"), QByteArray("3f 61 3f 3f"));
    QCOMPARE(encoded("a\tb\nc\x7f"), QByteArray("61 3f 62 3f 63 3f"));
    // Broken UTF-8: a byte that begins nothing, a character cut off by another, one cut off by the end.
    QCOMPARE(encoded("\xFF"
                     "a\xC3"
                     "b\xE2\x82"),
             QByteArray("3f 61 3f 62 3f 3f"));
}

void DwgWriterTest::refusesShapes_data()
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinity = std::numeric_limits<double>::infinity();
    QTest::addColumn<Shape>("shape");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const Shape& shape, const char* reason) {
        QTest::newRow(name) << shape << QString(reason);
    };
    row("line to nowhere", LineSegment{{0, 0}, {nan, 0}}, "x coordinate");
    row("line to infinity", LineSegment{{0, 0}, {0, -infinity}}, "y coordinate");
    row("line too far", LineSegment{{0, 0}, {1.1e9, 0}}, "1e9");
    row("circle without size", Circle{{0, 0}, 0}, "radius");
    row("circle inside out", Circle{{0, 0}, -1}, "radius");
    row("circle too large", Circle{{0, 0}, 1.1e9}, "1e9");
    row("circle of no radius", Circle{{0, 0}, nan}, "radius");
    row("polyline of one vertex", Polyline{{{{0, 0}, 0}}, true}, "vertices");
    row("polyline of no vertex", Polyline{}, "vertices");
    row("polyline to nowhere", Polyline{{{{0, 0}, 0}, {{0, nan}, 0}}, false}, "y coordinate");
    row("arc of no bulge", Polyline{{{{0, 0}, nan}, {{1, 0}, 0}}, false}, "bulge");
    row("arc bulging too far", Polyline{{{{0, 0}, 1e7}, {{1, 0}, 0}}, false}, "bulge");
    row("arc too large", Polyline{{{{0, 0}, 9e5}, {{1e4, 0}, 0}}, false}, "1e9");
    row("polyline too long", Polyline{std::vector<PolylineVertex>(1001), false}, "vertices");
}

void DwgWriterTest::refusesShapes()
{
    QFETCH(Shape, shape);
    QFETCH(QString, reason);
    const QString message = refusal(drawingOf(shape));
    QVERIFY2(message.contains(reason), qPrintable(message));
}

void DwgWriterTest::refusesTooManyPoints()
{
    const Entity line = {LineKind::Outline, LineSegment{}};
    const QString message = refusal({"", std::vector<Entity>(500'001, line)});
    QVERIFY2(message.contains("million"), qPrintable(message));
}

void DwgWriterTest::refusesLayerStyles_data()
{
    QTest::addColumn<DwgLayerStyles>("styles");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const DwgLayerStyle& hidden, const char* reason) {
        DwgLayerStyles styles = standardLayerStyles();
        styles[1] = hidden;
        QTest::newRow(name) << styles << QString(reason);
    };
    row("no name", {"", 8, 25}, "1 to 255 characters");
    row("long name", {std::string(256, 'a'), 8, 25}, "1 to 255 characters");
    row("colon", {"Hidden:", 8, 25}, "not allowed");
    row("backslash", {"Hid\\den", 8, 25}, "not allowed");
    row("control character", {"Hidden\n", 8, 25}, "not allowed");
    row("layer of every drawing", {"0", 8, 25}, "occurs twice");
    row("name of another layer", {"OUTLINE", 8, 25}, "occurs twice");
    row("colour by block", {"Hidden", 0, 25}, "colour");
    row("colour by layer", {"Hidden", 256, 25}, "colour");
    row("unknown width", {"Hidden", 8, 24}, "line width");
}

void DwgWriterTest::refusesLayerStyles()
{
    QFETCH(DwgLayerStyles, styles);
    QFETCH(QString, reason);
    const QString message = refusal(sampleDrawing("plate").drawing, styles);
    QVERIFY2(message.contains(reason), qPrintable(message));
}

void DwgWriterTest::acceptsOtherLayerStyles()
{
    DwgLayerStyles styles = standardLayerStyles();
    styles[0].name = std::string(255, 'x');
    styles[1] = {"Größe (verdeckt)", 3, 0};
    styles[2] = {"Оси", 5, 211};
    const GdalDrawing read = GdalDrawing::read(writeDwg(sampleDrawing("plate").drawing, styles));
    QCOMPARE(QStringList(read.layers.keys()), QStringList({"Größe (verdeckt)", "___", QString(255, 'x')}));
    QCOMPARE(read.layers["___"].front().colour, QString("#0000FFFF"));
}

void DwgWriterTest::equalDrawingsGiveEqualBytes()
{
    for (const SampleDrawing& sample : test::sampleDrawings()) {
        const Drawing copy = sample.drawing;
        QVERIFY(writeDwg(sample.drawing) == writeDwg(copy));
    }
    const Drawing right = drawingOf(LineSegment{{0.0, 1}, {2, -0.0}});
    const Drawing sameRight = drawingOf(LineSegment{{-0.0, 1}, {2, 0.0}});
    QVERIFY(writeDwg(right) == writeDwg(sameRight));
    QVERIFY(writeDwg(right) != writeDwg(drawingOf(LineSegment{{0, 1}, {2, 1e-9}})));
}

/// About half of the format's fields are shown by no reader that we have. Should this fail on purpose, open
/// the drawing in other CAD programs before the new value goes in here.
void DwgWriterTest::bytesAreThoseThatReadersAccepted()
{
    const QByteArray bytes = QByteArray::fromStdString(writeDwg(sampleDrawing("plate").drawing));
    QCOMPARE(QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex(),
             QByteArray("84149fa422b2bb043989341b34532b8803e159de"));
}

void DwgWriterTest::gdalReadsHeaderVariables_data()
{
    QTest::addColumn<QString>("name");
    for (const SampleDrawing& sample : test::sampleDrawings()) {
        QTest::newRow(sample.name.c_str()) << QString::fromStdString(sample.name);
    }
}

void DwgWriterTest::gdalReadsHeaderVariables()
{
    QFETCH(QString, name);
    const SampleDrawing sample = sampleDrawing(name.toStdString());
    const GdalDrawing read = GdalDrawing::read(writeDwg(sample.drawing));
    QVERIFY(read.opened);
    QCOMPARE(read.headerVariables["$INSUNITS"], QString("5"));
    QCOMPARE(read.headerVariables["$LTSCALE"].toDouble(), 1.0);

    const auto corner = [&read](const char* variable) {
        QString text = read.headerVariables[variable];
        const QStringList numbers = text.remove('[').remove(']').split(',');
        return Point2{numbers.value(0).toDouble(), numbers.value(1).toDouble()};
    };
    const Extents wanted = sample.extents.value_or(Extents{{1e20, 1e20}, {-1e20, -1e20}});
    const Point2 min = corner("$EXTMIN");
    const Point2 max = corner("$EXTMAX");
    // The driver tells fifteen digits.
    QVERIFY(qFuzzyCompare(min.x + 0.1, wanted.min.x + 0.1) && qFuzzyCompare(min.y + 0.1, wanted.min.y + 0.1));
    QVERIFY(qFuzzyCompare(max.x + 0.1, wanted.max.x + 0.1) && qFuzzyCompare(max.y + 0.1, wanted.max.y + 0.1));
}

void DwgWriterTest::gdalReadsLayersAndColours()
{
    const GdalDrawing empty = GdalDrawing::read(writeDwg(sampleDrawing("empty").drawing));
    QVERIFY(empty.opened);
    QVERIFY(empty.layers.isEmpty());

    const GdalDrawing plate = GdalDrawing::read(writeDwg(sampleDrawing("plate").drawing));
    QCOMPARE(QStringList(plate.layers.keys()), QStringList({"Centre", "Hidden", "Outline"}));
    for (const auto& features : plate.layers) {
        QCOMPARE(features.size(), 2);
    }
    QCOMPARE(plate.layers["Outline"].front().colour, QString("#FFFFFFFF"));
    QCOMPARE(plate.layers["Hidden"].front().colour, QString("#828282FF"));
    QCOMPARE(plate.layers["Centre"].front().colour, QString("#FF0000FF"));
}

void DwgWriterTest::gdalReadsLinesAndCircles()
{
    const GdalDrawing line = GdalDrawing::read(writeDwg(sampleDrawing("single-line").drawing));
    const GdalDrawing::Feature feature = line.layers.value("Centre").value(0);
    QCOMPARE(feature.kind, QString("CADLine"));
    QCOMPARE(feature.points.size(), 2);
    QCOMPARE(feature.points[0].x, -37.5);
    QCOMPARE(feature.points[0].y, -45.5);
    QCOMPARE(feature.points[1].y, -29.5);

    const GdalDrawing plate = GdalDrawing::read(writeDwg(sampleDrawing("plate").drawing));
    const auto outline = plate.layers["Outline"];
    QCOMPARE(outline[0].points.size(), 5); // closed: the first vertex comes again
    QVERIFY(Bounds(outline[0].points).isNear(0, 0, 8, 5));
    QCOMPARE(outline[1].kind, QString("CADCircle"));
    QVERIFY(Bounds(outline[1].points).isNear(0.95, 1.95, 2.05, 3.05));
}

/// Also where a line closes with an arc, which the driver would draw straight.
void DwgWriterTest::gdalReadsArcs()
{
    const GdalDrawing arcs = GdalDrawing::read(writeDwg(sampleDrawing("arcs").drawing));
    const auto outline = arcs.layers["Outline"];
    QVERIFY(Bounds(outline[0].points).isNear(0, 0, 1, 1));
    QVERIFY(Bounds(outline[1].points).isNear(6, -0.125, 7, 1.125));
    QVERIFY(Bounds(outline[2].points).isNear(0, 3, 3, 5));
    QVERIFY(Bounds(outline[3].points).isNear(5, 3, 9, 5));
    QVERIFY(Bounds(arcs.layers["Centre"][0].points).isNear(10, 2, 12, 4));
    const double radius = std::sqrt(2.0);
    QVERIFY(Bounds(arcs.layers["Hidden"][1].points).isNear(10, 7 - radius, 11 + radius, 8));
    // The middle of a quarter turned clockwise.
    const auto quarter = arcs.layers["Hidden"][0].points;
    const double middle = std::sqrt(0.5);
    QVERIFY(std::any_of(quarter.begin(), quarter.end(), [middle](Point2 point) {
        return std::hypot(point.x - (4 - middle), point.y - (1 - middle)) < 0.05;
    }));
}

void DwgWriterTest::gdalReadsManyEntities()
{
    const GdalDrawing many = GdalDrawing::read(writeDwg(sampleDrawing("many").drawing));
    QCOMPARE(many.layers["Outline"].size(), 667);
    QCOMPARE(many.layers["Hidden"].size(), 667);
    QCOMPARE(many.layers["Centre"].size(), 666);
    QCOMPARE(many.layers["Hidden"].back().points[1].x, 199.9);

    const GdalDrawing longLine = GdalDrawing::read(writeDwg(sampleDrawing("long-polyline").drawing));
    const auto points = longLine.layers["Outline"].value(0).points;
    QVERIFY(points.size() > 1000);
    QCOMPARE(points.back().x, 999.0);
}

QTEST_GUILESS_MAIN(DwgWriterTest)
#include "DwgWriterTest.moc"
