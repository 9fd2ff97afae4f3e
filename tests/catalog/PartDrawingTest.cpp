#include "dev/catalog/drawings/PartDrawing.h"
#include "dev/catalog/drawings/families/Families.h"
#include "dev/catalog/drawings/views/Sight.h"
#include "dev/catalog/parts/PartCatalog.h"
#include "dev/dwg/DrawingCheck.h"
#include "dev/dwg/DrawingExtents.h"
#include "dev/dwg/Writer.h"

#include <BRepBndLib.hxx>
#include <Bnd_Box.hxx>
#include <QImage>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <future>
#include <map>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

using namespace devcatalog;
using namespace dwg;

Q_DECLARE_METATYPE(const Part*)

namespace
{

/// A straight line or an arc of a drawing, also one that is part of a polyline.
struct DrawingPiece {
    LineKind kind;
    Point2 from;
    Point2 to;
    double bulge = 0.0;

    double length() const { return std::hypot(to.x - from.x, to.y - from.y); } ///< Of the chord.

    Point2 middle() const
    {
        // An arc's middle lies to the right of its chord, by the bulge times half of it.
        return {(from.x + to.x) / 2 + bulge * (to.y - from.y) / 2,
                (from.y + to.y) / 2 - bulge * (to.x - from.x) / 2};
    }

    DrawingPiece half() const { return {kind, from, middle(), std::tan(std::atan(bulge) / 2)}; }

    bool isNear(const Point2& point, double tolerance) const
    {
        // An arc's diameter is its chord, or more by its bulge.
        const double reach =
            length() * std::max(1.0, (std::abs(bulge) + 1 / std::max(std::abs(bulge), 1.0)) / 2);
        if (std::hypot(point.x - from.x, point.y - from.y) > reach + length() + tolerance)
            return false;
        // Halved until the pieces are as good as straight.
        if (std::abs(bulge) > 0.01)
            return half().isNear(point, tolerance) ||
                   DrawingPiece{kind, middle(), to, half().bulge}.isNear(point, tolerance);
        const Point2 along{to.x - from.x, to.y - from.y};
        const double fraction = ((point.x - from.x) * along.x + (point.y - from.y) * along.y) /
                                (along.x * along.x + along.y * along.y);
        const double nearest = std::clamp(fraction, 0.0, 1.0);
        return std::hypot(point.x - from.x - nearest * along.x, point.y - from.y - nearest * along.y) <
               tolerance;
    }

    QString toString() const
    {
        return QString::asprintf("kind %d from %g, %g to %g, %g bulge %g", int(kind), from.x, from.y, to.x,
                                 to.y, bulge);
    }
};

/// Takes a drawing's lines and polylines apart, all of them or those of one kind; circles are left out.
std::vector<DrawingPiece> piecesOf(const std::vector<Entity>& entities, std::optional<LineKind> kind = {})
{
    std::vector<DrawingPiece> pieces;
    for (const Entity& entity : entities) {
        if (kind && *kind != entity.kind)
            continue;
        if (const auto* line = std::get_if<LineSegment>(&entity.shape))
            pieces.push_back({entity.kind, line->from, line->to});
        const auto* polyline = std::get_if<Polyline>(&entity.shape);
        if (!polyline)
            continue;
        const auto& vertices = polyline->vertices;
        for (std::size_t i = 0; i + (polyline->closed ? 0 : 1) < vertices.size(); ++i)
            pieces.push_back({entity.kind, vertices[i].point, vertices[(i + 1) % vertices.size()].point,
                              vertices[i].bulge});
    }
    return pieces;
}

std::vector<Circle> circlesOf(const Drawing& drawing, LineKind kind)
{
    std::vector<Circle> circles;
    for (const Entity& entity : drawing.entities)
        if (const auto* circle = std::get_if<Circle>(&entity.shape); circle && entity.kind == kind)
            circles.push_back(*circle);
    return circles;
}

/// The entities that are not centre lines.
std::vector<Entity> edgesOf(const Drawing& drawing)
{
    std::vector<Entity> edges;
    std::copy_if(drawing.entities.begin(), drawing.entities.end(), std::back_inserter(edges),
                 [](const Entity& entity) { return entity.kind != LineKind::Centre; });
    return edges;
}

bool isPictorial(const std::string& view)
{
    return QString::fromStdString(view).endsWith("METRIC");
}

Drawing drawn(const Part& part, const std::string& view)
{
    return drawPart(part, part.configurations.back(), "eDrawingView_" + view).value();
}

/// How far from what the kernel says that a camera sees of a solid a principal view reaches, in centimetres;
/// 0 for the other views, and for a spring, which is no shape of the kernel.
double offTheSolid(const Solid& solid, const std::string& view, const Drawing& drawing)
{
    static const std::map<std::string, Camera> cameras{
        {"eDrawingView_FRONT", Camera::frontView()}, {"eDrawingView_BACK", Camera::backView()},
        {"eDrawingView_TOP", Camera::topView()},     {"eDrawingView_BOTTOM", Camera::bottomView()},
        {"eDrawingView_RIGHT", Camera::rightView()}, {"eDrawingView_LEFT", Camera::leftView()}};
    const auto camera = cameras.find(view);
    if (camera == cameras.end() || solid.bodies.empty())
        return 0;
    Bnd_Box box;
    for (const TopoDS_Shape& shape : shapesSeen(solid, camera->second))
        BRepBndLib::AddOptimal(shape, box, false, false);
    const gp_Pnt2d a = camera->second.project(box.CornerMin());
    const gp_Pnt2d b = camera->second.project(box.CornerMax());
    const Extents seen = extentsOf(edgesOf(drawing)).value();
    return std::max({std::abs(seen.min.x - std::min(a.X(), b.X()) / 10),
                     std::abs(seen.min.y - std::min(a.Y(), b.Y()) / 10),
                     std::abs(seen.max.x - std::max(a.X(), b.X()) / 10),
                     std::abs(seen.max.y - std::max(a.Y(), b.Y()) / 10)});
}

/// "lines/arcs/circles" of outlines, hidden edges and centre lines.
QString tally(const Drawing& drawing)
{
    QStringList counts;
    for (const LineKind kind : {LineKind::Outline, LineKind::Hidden, LineKind::Centre}) {
        int lines = 0;
        int arcs = 0;
        for (const DrawingPiece& piece : piecesOf(drawing.entities, kind))
            ++(piece.bulge == 0 ? lines : arcs);
        counts << QString("%1/%2/%3").arg(lines).arg(arcs).arg(circlesOf(drawing, kind).size());
    }
    return counts.join(" ");
}

/// An edge that another one covers; empty when there is none.
QString drawnTwice(const Drawing& drawing)
{
    const std::vector<DrawingPiece> pieces = piecesOf(edgesOf(drawing));
    for (const DrawingPiece& piece : pieces)
        for (const DrawingPiece& other : pieces) {
            const bool isStraight = piece.bulge == 0;
            const double tolerance = isStraight ? 1e-5 : 1e-3 * piece.length();
            if (&other != &piece && isStraight == (other.bulge == 0) &&
                (isStraight || piece.kind == other.kind) && other.isNear(piece.middle(), tolerance) &&
                other.isNear(piece.half().middle(), tolerance))
                return piece.toString() + " and " + other.toString();
        }
    return {};
}

/// An outline with an end that lies on no other outline, which has been taken for hidden by mistake; empty
/// when there is none.
QString looseOutline(const Drawing& drawing)
{
    const Extents extents = extentsOf(drawing.entities).value();
    const double tolerance = 1e-3 * std::max(extents.width(), extents.height());
    const auto circles = circlesOf(drawing, LineKind::Outline);
    const auto pieces = piecesOf(drawing.entities, LineKind::Outline);
    for (const DrawingPiece& piece : pieces)
        for (const Point2& end : {piece.from, piece.to}) {
            const bool onPiece = std::any_of(pieces.begin(), pieces.end(), [&](const DrawingPiece& other) {
                return &other != &piece && other.isNear(end, tolerance);
            });
            const bool onCircle = std::any_of(circles.begin(), circles.end(), [&](const Circle& circle) {
                const double distance = std::hypot(end.x - circle.centre.x, end.y - circle.centre.y);
                return std::abs(distance - circle.radius) < tolerance;
            });
            if (!onPiece && !onCircle)
                return piece.toString();
        }
    return {};
}

} // namespace

class PartDrawingTest : public QObject
{
    Q_OBJECT

private slots:
    void everyFamilyDrawsEveryView_data();
    void everyFamilyDrawsEveryView();
    void everyPartDraws();
    void threadsAndKeywaysFollowTheStandards();
    void threadsShowFromTheirEnds();
    void drawsInEitherUnit();
    void drawsOnSeveralThreads();
    void viewsShowTheDimensions();
    void multipleViewsLieBesideOneAnother();
    void thumbnailsShowTheParts();

private:
    /// @param size a configuration's name; empty for the last one of the family's first part.
    Drawing drawnFromCatalog(const QString& family, const QString& size, const QString& view) const;

    const PartCatalog m_catalog;
};

Drawing PartDrawingTest::drawnFromCatalog(const QString& family, const QString& size,
                                          const QString& view) const
{
    const std::string wireName = "eDrawingView_" + view.toStdString();
    for (const Part& part : m_catalog.parts()) {
        if (part.family != family.toStdString())
            continue;
        if (size.isEmpty())
            return drawn(part, view.toStdString());
        for (const Configuration& configuration : part.configurations)
            if (configuration.name == size.toStdString())
                return drawPart(part, configuration, wireName).value();
    }
    throw std::invalid_argument("no such part");
}

void PartDrawingTest::everyFamilyDrawsEveryView_data()
{
    QTest::addColumn<const Part*>("part");
    QMap<QString, const Part*> last;
    for (const Part& part : m_catalog.parts())
        last[QString::fromStdString(part.family)] = &part;
    for (auto family = last.begin(); family != last.end(); ++family)
        QTest::newRow(qPrintable(family.key())) << family.value();
}

void PartDrawingTest::everyFamilyDrawsEveryView()
{
    QFETCH(const Part*, part);
    // The outlines of bent wires do end where the wire turns from the viewer, and in pictorial views the
    // parting line of an enclosure goes on behind its rounded corners for half a millimetre.
    const bool hasLooseEnds =
        QStringList{"compression-spring", "bridge-handle", "enclosure"}.contains(part->family.c_str());
    const Solid solid = buildSolid(part->family, part->configurations.back());
    for (const std::string_view wireName : drawingViews()) {
        const std::string view(wireName);
        const auto drawing = drawPart(*part, part->configurations.back(), view);
        const auto& unsupported = part->unsupportedViews;
        QCOMPARE(!drawing, std::find(unsupported.begin(), unsupported.end(), view) != unsupported.end());
        if (!drawing)
            continue;
        checkDrawing(*drawing);
        QCOMPARE(drawing->title, part->name);
        const auto has = [&drawing](LineKind kind) {
            return std::any_of(drawing->entities.begin(), drawing->entities.end(),
                               [kind](const Entity& entity) { return entity.kind == kind; });
        };
        QVERIFY2(has(LineKind::Outline), view.c_str());
        QCOMPARE(has(LineKind::Centre), !isPictorial(view));
        QVERIFY2(!isPictorial(view) || !has(LineKind::Hidden), view.c_str());
        QVERIFY2(drawing->entities.size() < 400, view.c_str());
        const QString twice = drawnTwice(*drawing);
        QVERIFY2(twice.isEmpty(), qPrintable(QString::fromStdString(view) + ": " + twice));
        const QString loose = looseOutline(*drawing);
        QVERIFY2(hasLooseEnds || loose.isEmpty(), qPrintable(QString::fromStdString(view) + ": " + loose));
        const double off = offTheSolid(solid, view, *drawing);
        QVERIFY2(off < 0.001, qPrintable(QString("%1: %2 cm").arg(view.c_str()).arg(off)));
    }
}

void PartDrawingTest::everyPartDraws()
{
    std::set<std::string> seen; // Several suppliers offer the same solid.
    for (const Part& part : m_catalog.parts()) {
        std::string solid = part.family;
        for (const Parameter& parameter : part.configurations.back().parameters)
            solid += '|' + parameter.value;
        if (seen.insert(solid).second)
            QVERIFY2(!drawn(part, "RIGHT").entities.empty(), part.name.c_str());
    }
}

void PartDrawingTest::threadsAndKeywaysFollowTheStandards()
{
    const auto longest = [this](const char* family, const char* size, LineKind kind) {
        double length = 0;
        for (const DrawingPiece& piece : piecesOf(drawnFromCatalog(family, size, "FRONT").entities, kind))
            if (piece.bulge == 0 && std::abs(piece.from.y - piece.to.y) < 1e-6)
                length = std::max(length, 10 * piece.length());
        return std::round(100 * length) / 100;
    };
    QCOMPARE(longest("hex-bolt", "M10 x 60", LineKind::Thread), 26.0);
    QCOMPARE(longest("socket-screw", "M10 x 50", LineKind::Thread), 32.0);
    QCOMPARE(longest("socket-screw", "M3 x 16", LineKind::Thread), 15.0); // whole but for the first two turns
    QCOMPARE(longest("spur-gear", "M2 Z24, bore 12", LineKind::Outline), 4.0); // its keyway
    QCOMPARE(longest("spur-gear", "M2 Z24, bore 18", LineKind::Outline), 6.0);
}

/// Three quarters of a circle, outside and inside, with no edge in its place.
void PartDrawingTest::threadsShowFromTheirEnds()
{
    const std::tuple<const char*, const char*, const char*, double> ends[] = {
        {"hex-bolt", "M10 x 60", "RIGHT", 10 - 1.2269 * 1.5},
        {"hex-nut", "M10, height 8.4", "TOP", 10},
        {"bridge-handle", "128, height 50", "BOTTOM", 6}};
    for (const auto& [family, size, view, diameter] : ends) {
        const Drawing drawing = drawnFromCatalog(family, size, view);
        double sweep = 0;
        for (const DrawingPiece& piece : piecesOf(drawing.entities, LineKind::Thread)) {
            const double turn = 4 * std::atan(std::abs(piece.bulge));
            QVERIFY(std::abs(10 * piece.length() / std::sin(turn / 2) - diameter) < 0.01);
            sweep += turn;
        }
        const double count = QString(family) == "bridge-handle" ? 2 : 1;
        QVERIFY2(std::abs(sweep - count * 1.5 * 3.14159265) < 1e-3, family);
        for (const Circle& circle : circlesOf(drawing, LineKind::Outline))
            QVERIFY2(std::abs(20 * circle.radius - diameter) > 0.01, family);
    }
}

void PartDrawingTest::drawsInEitherUnit()
{
    const Part& part = m_catalog.parts().front();
    const auto drawn = [&part](Unit unit) {
        return drawPart(part, part.configurations.front(), "eDrawingView_FRONT", unit).value();
    };
    const Drawing small = drawn(Unit::Centimetre);
    const Drawing large = drawn(Unit::Millimetre);
    QVERIFY(small.unit == Unit::Centimetre && large.unit == Unit::Millimetre);
    QCOMPARE(extentsOf(large.entities)->width(), 10 * extentsOf(small.entities)->width());
    QCOMPARE(large.linetypeScale, 10 * small.linetypeScale);
}

/// The service draws on all of its threads at once.
void PartDrawingTest::drawsOnSeveralThreads()
{
    const auto drawAll = [this](std::size_t first) {
        std::map<std::size_t, std::string> files;
        for (std::size_t i = first; i < first + 12; ++i)
            files[i % 12] =
                writeDwg(drawn(m_catalog.parts()[i % 12 * m_catalog.parts().size() / 12], "RIGHT"));
        return files;
    };
    const auto alone = drawAll(0);
    std::vector<std::future<std::map<std::size_t, std::string>>> threads;
    for (const std::size_t first : {0, 3, 6, 9})
        threads.push_back(std::async(std::launch::async, drawAll, first));
    for (auto& thread : threads)
        QVERIFY(thread.get() == alone);
}

void PartDrawingTest::viewsShowTheDimensions()
{
    const auto row = [this](const char* family, const char* size, const char* view, double width,
                            double height, const char* lines = "") {
        const Drawing drawing = drawnFromCatalog(family, size, view);
        const Extents extents = extentsOf(edgesOf(drawing)).value();
        const QString found =
            QString("%1 %2: %3 x %4").arg(family, view).arg(extents.width()).arg(extents.height());
        QVERIFY2(std::abs(extents.width() - width) < 1e-3, qPrintable(found));
        QVERIFY2(std::abs(extents.height() - height) < 1e-3, qPrintable(found));
        if (*lines != '\0')
            QCOMPARE(tally(drawing), QString(lines));
    };
    const double corners = 2 / std::sqrt(3.0);
    // Where lines are counted, some edges are to be seen from one side only, such as a socket's six.
    row("hex-bolt", "M8 x 50", "FRONT", 5.53, 1.3 * corners);
    row("hex-bolt", "M8 x 50", "TOP", 5.53, 1.3);
    row("socket-screw", "M8 x 40", "LEFT", 1.3, 1.3, "6/0/1 0/0/2 2/0/0");
    row("socket-screw", "M8 x 40", "RIGHT", 1.3, 1.3, "0/0/2 6/0/0 2/0/0");
    row("socket-screw", "M8 x 40", "BACK", 4.8, 1.3);
    row("hex-nut", "M10, height 8.4", "FRONT", 1.6 * corners, 0.84);
    row("washer", "M10, thickness 2", "TOP", 2, 2, "0/0/2 0/0/0 2/0/0");
    row("washer", "M10, thickness 2", "LEFT", 2, 0.2, "4/0/0 2/0/0 1/0/0");
    row("dowel-pin", "8 m6 x 50", "FRONT", 5, 0.8);
    row("ball-bearing", "6204 open", "TOP", 4.7, 1.4, "10/0/0 10/0/0 1/0/0");
    row("spur-gear", "M2 Z24, bore 18", "FRONT", 5.2, 5.2, "51/146/1 0/0/0 2/0/1");
    row("spur-gear", "M2 Z24, bore 18", "RIGHT", 3.2, 5.2, "7/0/0 3/0/0 3/0/0");
    row("v-belt-pulley", "SPA 125-2, bore 30", "TOP", 13.06, 3.5, "28/0/0 12/0/0 3/0/0");
    row("compression-spring", "2 x 20, free length 50", "TOP", 2, 2);
    row("angle-bracket", "50x30 x 60", "FRONT", 5, 3, "6/2/0 4/0/0 2/0/0");
    row("angle-bracket", "50x30 x 60", "TOP", 5, 6, "5/0/2 4/0/0 6/0/0");
    row("angle-bracket", "50x30 x 60", "RIGHT", 6, 3, "5/0/2 4/0/0 6/0/0");
    row("aluminium-profile", "40x40, 160 mm", "TOP", 16, 4, "6/0/0 12/0/0 1/0/0");
    row("pipe-flange", "DN 50, thickness 20", "RIGHT", 4.5, 16.5, "10/0/0 6/0/0 3/0/0");
    row("bridge-handle", "128, height 50", "RIGHT", 1.62, 5);
    row("enclosure", "120x80 x 65", "TOP", 12, 8, "12/4/8 8/4/0 10/0/0");
    row("stepper-motor", "57-76", "TOP", 9.7, 5.64);
    row("pneumatic-cylinder", "32-100", "BOTTOM", 9.4 + 10 + 0.95 * 2.7 + 2.2, 4.7, "25/0/0 14/0/2 7/0/0");
}

void PartDrawingTest::multipleViewsLieBesideOneAnother()
{
    const auto drawn = [this](const char* view) { return drawnFromCatalog("angle-bracket", "", view); };
    const Drawing all = drawn("4VIEW");
    QCOMPARE(drawn("MULTI").entities.size() + drawn("ISOMETRIC").entities.size(), all.entities.size());
    auto next = all.entities.begin();
    const auto extentsOfNext = [&](const char* view) {
        const auto begin = std::exchange(next, next + std::ptrdiff_t(drawn(view).entities.size()));
        return extentsOf(edgesOf({"", {begin, next}})).value();
    };
    const Extents front = extentsOfNext("FRONT");
    const Extents above = extentsOfNext("TOP");
    const Extents beside = extentsOfNext("RIGHT");
    const Extents picture = extentsOfNext("ISOMETRIC");
    QVERIFY(next == all.entities.end());
    QVERIFY(above.min.y > front.max.y);
    QCOMPARE(above.min.x, front.min.x);
    QVERIFY(beside.min.x > front.max.x);
    QCOMPARE(beside.min.y, front.min.y);
    QVERIFY(picture.min.x > front.max.x && picture.min.x > above.max.x);
    QVERIFY(picture.min.y > front.max.y && picture.min.y > beside.max.y);
}

void PartDrawingTest::thumbnailsShowTheParts()
{
    QMap<QString, QImage> pictures;
    for (const Part& part : m_catalog.parts()) {
        const QString family = QString::fromStdString(part.family);
        if (pictures.contains(family))
            continue;
        const std::string png = drawThumbnail(part, 100, 80);
        const QImage picture = QImage::fromData(QByteArray::fromStdString(png), "PNG");
        QCOMPARE(picture.size(), QSize(100, 80));
        QCOMPARE(qAlpha(picture.pixel(0, 0)), 0);
        int opaque = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                opaque += qAlpha(picture.pixel(x, y)) == 255 ? 1 : 0;
        QVERIFY2(opaque > 300, qPrintable(family));
        QVERIFY2(!pictures.values().contains(picture), qPrintable(family));
        pictures.insert(family, picture);
    }
}

QTEST_GUILESS_MAIN(PartDrawingTest)
#include "PartDrawingTest.moc"
