#include "dev/catalog/drawings/views/Sight.h"

#include <BRep_Builder.hxx>
#include <TopoDS_Compound.hxx>

#include <algorithm>

namespace devcatalog
{

std::vector<TopoDS_Shape> shapesSeen(const Solid& solid, const Camera& camera)
{
    std::vector<TopoDS_Shape> shapes;
    for (const Body& body : solid.bodies) {
        const bool simplified = !body.fromTheSide.IsNull() && camera.seesFromTheSide(gp::DY());
        shapes.push_back(simplified ? body.fromTheSide : body.shape);
    }
    return shapes;
}

Sight::Sight(const Solid& solid, const Camera& camera) : m_toward(camera.toward)
{
    TopoDS_Compound compound;
    BRep_Builder builder;
    builder.MakeCompound(compound);
    for (const TopoDS_Shape& shape : shapesSeen(solid, camera))
        builder.Add(compound, shape);
    m_intersector.Load(compound, 1e-6);
}

bool Sight::isFree(const gp_Pnt& point, double beginning)
{
    constexpr double farAway = 1e6;
    m_intersector.Perform(gp_Lin(point, m_toward), beginning, farAway);
    return m_intersector.NbPnt() == 0;
}

std::vector<Sight::Piece> Sight::split(double from, double to, const std::function<gp_Pnt(double)>& place,
                                       int steps, double beginning)
{
    const double step = (to - from) / steps;
    const auto look = [=](int i) { return from + std::clamp(i - 0.5, 0.02, steps - 0.02) * step; };
    std::vector<Piece> pieces{{from, to, isFree(place(look(0)), beginning)}};
    for (int i = 1; i <= steps + 1; ++i) {
        Piece& last = pieces.back();
        double before = look(i - 1);
        double after = look(i);
        if (isFree(place(after), beginning) == last.visible)
            continue;
        constexpr int halvings = 14;
        for (int halving = 0; halving < halvings; ++halving) {
            const double middle = (before + after) / 2;
            (isFree(place(middle), beginning) == last.visible ? before : after) = middle;
        }
        last.to = after;
        pieces.push_back({after, to, !last.visible});
    }
    return pieces;
}

} // namespace devcatalog
