#include "dev/catalog/drawings/PartDrawing.h"

#include "dev/catalog/drawings/families/Families.h"
#include "dev/catalog/drawings/views/ShadedPicture.h"
#include "dev/catalog/drawings/views/ViewDrawing.h"
#include "dev/dwg/DrawingExtents.h"

#include <BRepBndLib.hxx>
#include <Bnd_Box.hxx>
#include <QBuffer>
#include <Standard_Failure.hxx>

#include <algorithm>
#include <stdexcept>

namespace devcatalog
{

namespace
{

/// A part's larger side, in drawing units, at which linetypes have their own lengths.
constexpr double SizeOfPlainLinetypes = 12;

/// Of a PNG file, which loses nothing: the usual one is 5 % smaller and takes twice as long.
constexpr int PictureQuality = 60;

/// Moves a shape, then scales it.
struct Place {
    dwg::Point2 offset;
    double scale;

    dwg::Point2 operator()(const dwg::Point2& point) const
    {
        return {scale * (point.x + offset.x), scale * (point.y + offset.y)};
    }
    dwg::Shape operator()(const dwg::LineSegment& line) const
    {
        return dwg::LineSegment{(*this)(line.from), (*this)(line.to)};
    }
    dwg::Shape operator()(const dwg::Circle& circle) const
    {
        return dwg::Circle{(*this)(circle.centre), scale * circle.radius};
    }
    dwg::Shape operator()(const dwg::Polyline& line) const
    {
        dwg::Polyline placed = line;
        for (dwg::PolylineVertex& vertex : placed.vertices)
            vertex.point = (*this)(vertex.point);
        return placed;
    }
};

void place(std::vector<dwg::Entity>& entities, const dwg::Point2& offset, double scale)
{
    for (dwg::Entity& entity : entities)
        entity.shape = std::visit(Place{offset, scale}, entity.shape);
}

Camera cameraFor(Side side)
{
    switch (side) {
    case Side::Top:
        return Camera::topView();
    case Side::Left:
        return Camera::leftView();
    case Side::Right:
        return Camera::rightView();
    case Side::Front:
        break;
    }
    return Camera::frontView();
}

/// A solid always shows something.
dwg::Extents extentsOfView(const std::vector<dwg::Entity>& entities)
{
    return dwg::extentsOf(entities).value();
}

/// Front, top above it and right side beside it, as in third-angle projection; a picture goes into the
/// corner.
std::vector<dwg::Entity> arrangedViews(const Solid& solid, bool withPicture)
{
    std::vector<dwg::Entity> entities = drawView(solid, Camera::frontView());
    std::vector<dwg::Entity> top = drawView(solid, Camera::topView());
    std::vector<dwg::Entity> right = drawView(solid, Camera::rightView());
    const dwg::Extents front = extentsOfView(entities);
    const double gap = 0.2 * std::max({front.width(), front.height(), extentsOfView(right).width()});
    const dwg::Point2 corner{front.max.x + gap, front.max.y + gap};
    place(top, {0, corner.y - extentsOfView(top).min.y}, 1);
    place(right, {corner.x - extentsOfView(right).min.x, 0}, 1);
    entities.insert(entities.end(), top.begin(), top.end());
    entities.insert(entities.end(), right.begin(), right.end());
    if (withPicture) {
        std::vector<dwg::Entity> picture = drawView(solid, Camera::isometricView());
        const dwg::Extents extents = extentsOfView(picture);
        place(picture, {corner.x - extents.min.x, corner.y - extents.min.y}, 1);
        entities.insert(entities.end(), picture.begin(), picture.end());
    }
    return entities;
}

template <Camera (*camera)()>
std::vector<dwg::Entity> drawFrom(const Solid& solid)
{
    return drawView(solid, camera());
}

struct View {
    std::string_view wireName;
    std::vector<dwg::Entity> (*draw)(const Solid& solid);
};

constexpr View Views[] = {
    {"eDrawingView_PREDEFINED", [](const Solid& solid) { return drawView(solid, cameraFor(solid.telling)); }},
    {"eDrawingView_4VIEW", [](const Solid& solid) { return arrangedViews(solid, true); }},
    {"eDrawingView_MULTI", [](const Solid& solid) { return arrangedViews(solid, false); }},
    {"eDrawingView_FRONT", drawFrom<Camera::frontView>},
    {"eDrawingView_TOP", drawFrom<Camera::topView>},
    {"eDrawingView_RIGHT", drawFrom<Camera::rightView>},
    {"eDrawingView_BACK", drawFrom<Camera::backView>},
    {"eDrawingView_BOTTOM", drawFrom<Camera::bottomView>},
    {"eDrawingView_LEFT", drawFrom<Camera::leftView>},
    {"eDrawingView_ISOMETRIC", drawFrom<Camera::isometricView>},
    {"eDrawingView_DIMETRIC", drawFrom<Camera::dimetricView>},
    {"eDrawingView_TRIMETRIC", drawFrom<Camera::trimetricView>},
};

std::optional<std::vector<dwg::Entity>> draw(const Solid& solid, std::string_view wireName)
{
    for (const View& view : Views)
        if (view.wireName == wireName)
            return view.draw(solid);
    return std::nullopt;
}

/// The larger side of what a part takes up when it is seen from the front, the top or the right, in
/// millimetres.
double sizeOf(const Solid& solid)
{
    double size = 0;
    for (const Axis& axis : solid.axes)
        size = std::max({size, axis.from.Distance(axis.to), 2 * axis.radius});
    Bnd_Box box;
    for (const Body& body : solid.bodies)
        BRepBndLib::Add(body.shape, box, false);
    if (!box.IsVoid()) {
        const gp_Vec diagonal(box.CornerMin(), box.CornerMax());
        size = std::max({size, diagonal.X(), diagonal.Y(), diagonal.Z()});
    }
    return size;
}

/// Calls a function that uses the kernel, whose failures are no exceptions of the standard library.
template <typename Function>
auto withKernel(const Function& function)
{
    try {
        return function();
    } catch (const Standard_Failure& failure) {
        throw std::runtime_error(std::string("the modelling kernel failed: ") + failure.GetMessageString());
    }
}

} // namespace

std::vector<std::string_view> drawingViews()
{
    std::vector<std::string_view> names;
    for (const View& view : Views)
        names.push_back(view.wireName);
    return names;
}

std::optional<dwg::Drawing> drawPart(const Part& part, const Configuration& configuration,
                                     std::string_view view, dwg::Unit unit)
{
    const auto& unsupported = part.unsupportedViews;
    if (std::find(unsupported.begin(), unsupported.end(), view) != unsupported.end())
        return std::nullopt;
    return withKernel([&]() -> std::optional<dwg::Drawing> {
        const Solid solid = buildSolid(part.family, configuration);
        std::optional<std::vector<dwg::Entity>> entities = draw(solid, view);
        if (!entities)
            return std::nullopt;
        const double scale = unit == dwg::Unit::Centimetre ? 0.1 : 1.0;
        place(*entities, {}, scale);
        return dwg::Drawing{part.name, std::move(*entities), unit,
                            scale * sizeOf(solid) / SizeOfPlainLinetypes};
    });
}

std::string drawThumbnail(const Part& part, int width, int height)
{
    if (width < 1 || height < 1 || part.configurations.empty())
        throw std::invalid_argument("no picture without a size and a configuration");
    const QImage picture = withKernel([&] {
        const Solid solid = buildSolid(part.family, part.configurations.back());
        return paintSolid(solid, Camera::isometricView(), width, height);
    });
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG", PictureQuality);
    return buffer.data().toStdString();
}

} // namespace devcatalog
