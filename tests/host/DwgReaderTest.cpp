#include "dev/host/drawing/DwgReader.h"
#include "dev/dwg/Writer.h"
#include "tests/support/FatalWarnings.h"

#include <QFile>
#include <QPolygonF>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <random>

using devhost::BlockPath;
using devhost::DrawingUnit;
using devhost::DwgContent;
using devhost::LineType;
using dwg::LineKind;

namespace
{

QByteArray goodDrawing()
{
    dwg::Drawing drawing;
    drawing.title = "plate";
    drawing.entities = {
        {LineKind::Outline, dwg::LineSegment{{-1.0, 0.0}, {4.0, 2.5}}},
        {LineKind::Hidden, dwg::Circle{{1.0, 2.0}, 3.0}},
        {LineKind::Centre, dwg::Polyline{{{{0.0, 0.0}, 0.0}, {{6.0, 0.0}, 1.0}, {{6.0, 2.0}, 0.0}}, false}},
    };
    return QByteArray::fromStdString(dwg::writeDwg(drawing));
}

} // namespace

class DwgReaderTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_warnings = std::make_unique<test::FatalWarnings>(); }
    void cleanup() { m_warnings.reset(); }

    void readsLinesWithLineTypesAndColours();
    void unreadableFilesAreNamed();
    void damagedFilesAreSurvived();

private:
    DwgContent read(const QByteArray& bytes, DrawingUnit unit = DrawingUnit::None)
    {
        const QString path = m_folder.filePath("part0.dwg");
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("The test's file cannot be written");
        file.close();
        return devhost::readDwg(path, unit);
    }

    std::unique_ptr<test::FatalWarnings> m_warnings;
    QTemporaryDir m_folder;
};

void DwgReaderTest::readsLinesWithLineTypesAndColours()
{
    const DwgContent content = read(goodDrawing());
    QCOMPARE(content.problem, QString());
    QVERIFY(content.geometry);
    QCOMPARE(content.geometry->paths.size(), 3);

    const auto pathOf = [&](LineType lineType) {
        for (const BlockPath& path : content.geometry->paths)
            if (path.lineType == lineType)
                return path;
        return BlockPath();
    };
    const BlockPath outline = pathOf(LineType::Continuous);
    QCOMPARE(outline.points, (QVector<QPointF>{{-1.0, 0.0}, {4.0, 2.5}}));
    QCOMPARE(outline.rgb, BlockPath::Foreground);

    const BlockPath circle = pathOf(LineType::Hidden);
    QCOMPARE(circle.points.first(), circle.points.last());
    for (const QPointF& point : circle.points)
        QVERIFY(qAbs(std::hypot(point.x() - 1.0, point.y() - 2.0) - 3.0) < 1e-9);

    const BlockPath arc = pathOf(LineType::Centre);
    QCOMPARE(arc.rgb, 0xFF0000U);
    QVERIFY(qAbs(QPolygonF(arc.points).boundingRect().right() - 7.0) < 1e-3); // A half circle to the right.

    QCOMPARE(content.unit, DrawingUnit::Centimetre);
    const QVector<QPair<DrawingUnit, double>> lengths{{DrawingUnit::Millimetre, 10.0},
                                                      {DrawingUnit::Inch, 1 / 2.54},
                                                      {DrawingUnit::None, 1.0},
                                                      {devhost::drawingUnitOf(-7), 1.0}};
    for (const auto& [unit, factor] : lengths) {
        const DwgContent converted = read(goodDrawing(), unit);
        QCOMPARE(converted.factor, factor);
        QCOMPARE(converted.geometry->paths.at(0).points.at(1),
                 content.geometry->paths.at(0).points.at(1) * factor);
    }
}

void DwgReaderTest::unreadableFilesAreNamed()
{
    const QString damaged = "it is damaged or cut short.";
    const QByteArray noise = QByteArray("noise").repeated(1000);
    const QVector<QPair<QByteArray, QString>> files{
        {QByteArray(), "it is empty."},
        {noise, "it is not a DWG file."},
        {"AC1015" + noise, damaged},
        {goodDrawing().left(2500), damaged},
        {"AC1032" + goodDrawing().mid(6), "it is of release AC1032, not AC1015."},
    };
    for (const auto& [bytes, reason] : files) {
        const DwgContent content = read(bytes);
        QVERIFY(!content.geometry);
        QCOMPARE(content.problem, "Cannot read part0.dwg: " + reason);
    }
    QVERIFY(!devhost::readDwg(m_folder.filePath("missing.dwg")).geometry);
    const DwgContent empty = read(QByteArray::fromStdString(dwg::writeDwg({})));
    QVERIFY(empty.geometry && empty.geometry->paths.isEmpty());
    QCOMPARE(empty.problem, QString("part0.dwg draws nothing."));
}

void DwgReaderTest::damagedFilesAreSurvived()
{
    const QByteArray good = goodDrawing();
    for (int length = 0; length < good.size(); length += 61)
        read(good.left(length));
    std::mt19937 random(11);
    for (int round = 0; round < 200; ++round) {
        QByteArray damaged = good;
        for (int i = 0; i < 4; ++i)
            damaged[static_cast<int>(random() % static_cast<unsigned>(damaged.size()))] =
                static_cast<char>(random());
        const DwgContent content = read(damaged);
        QVERIFY(content.geometry || !content.problem.isEmpty());
    }
}

QTEST_GUILESS_MAIN(DwgReaderTest)
#include "DwgReaderTest.moc"
