#include "dev/catalog/drawings/views/PolylineChain.h"

#include <cmath>
#include <utility>

namespace devcatalog
{

namespace
{

dwg::Polyline turnedAround(const dwg::Polyline& line)
{
    dwg::Polyline result;
    for (std::size_t i = line.vertices.size(); i-- > 0;)
        result.vertices.push_back({line.vertices[i].point, i > 0 ? -line.vertices[i - 1].bulge : 0});
    return result;
}

struct Chainer {
    std::vector<dwg::Polyline> pieces;
    double tolerance;
    std::vector<bool> used = std::vector<bool>(pieces.size());

    std::vector<dwg::Polyline> chains()
    {
        std::vector<dwg::Polyline> result;
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            if (used[i])
                continue;
            used[i] = true;
            dwg::Polyline chain = pieces[i];
            extend(chain);
            chain = turnedAround(chain);
            extend(chain);
            close(chain);
            result.push_back(std::move(chain));
        }
        return result;
    }

    bool meet(const dwg::Point2& a, const dwg::Point2& b) const
    {
        return std::hypot(b.x - a.x, b.y - a.y) < tolerance;
    }

    /// @return the pieces that end in a point; twice the one that begins there too.
    std::vector<std::size_t> piecesAt(const dwg::Point2& point) const
    {
        std::vector<std::size_t> result;
        for (std::size_t i = 0; i < pieces.size(); ++i)
            for (const dwg::PolylineVertex& end : {pieces[i].vertices.front(), pieces[i].vertices.back()})
                if (meet(end.point, point))
                    result.push_back(i);
        return result;
    }

    /// Appends pieces to the chain's end.
    void extend(dwg::Polyline& chain)
    {
        for (;;) {
            const dwg::Point2 end = chain.vertices.back().point;
            const std::vector<std::size_t> here = piecesAt(end);
            if (here.size() != 2 || (used[here[0]] && used[here[1]]))
                return;
            const std::size_t next = used[here[0]] ? here[1] : here[0];
            used[next] = true;
            const bool forward = meet(pieces[next].vertices.front().point, end);
            const auto& [vertices, closed] = forward ? pieces[next] : turnedAround(pieces[next]);
            chain.vertices.back().bulge = vertices.front().bulge;
            chain.vertices.insert(chain.vertices.end(), vertices.begin() + 1, vertices.end());
        }
    }

    void close(dwg::Polyline& chain) const
    {
        const dwg::Point2& end = chain.vertices.back().point;
        chain.closed =
            chain.vertices.size() > 2 && meet(chain.vertices.front().point, end) && piecesAt(end).size() == 2;
        if (chain.closed)
            chain.vertices.pop_back();
    }
};

} // namespace

std::vector<dwg::Polyline> chainPolylines(std::vector<dwg::Polyline> pieces, double tolerance)
{
    return Chainer{std::move(pieces), tolerance}.chains();
}

} // namespace devcatalog
