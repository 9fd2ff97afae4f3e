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

class Chainer
{
public:
    Chainer(std::vector<dwg::Polyline> pieces, double tolerance)
        : m_pieces(std::move(pieces)), m_tolerance(tolerance), m_used(m_pieces.size(), false)
    {
    }

    std::vector<dwg::Polyline> chains()
    {
        std::vector<dwg::Polyline> result;
        for (std::size_t i = 0; i < m_pieces.size(); ++i) {
            if (m_used[i])
                continue;
            m_used[i] = true;
            dwg::Polyline chain = m_pieces[i];
            extend(chain);
            chain = turnedAround(chain);
            extend(chain);
            close(chain);
            result.push_back(std::move(chain));
        }
        return result;
    }

private:
    bool meet(const dwg::Point2& a, const dwg::Point2& b) const
    {
        return std::hypot(b.x - a.x, b.y - a.y) < m_tolerance;
    }

    /// @return the pieces that end in a point; twice the one that begins there too.
    std::vector<std::size_t> piecesAt(const dwg::Point2& point) const
    {
        std::vector<std::size_t> pieces;
        for (std::size_t i = 0; i < m_pieces.size(); ++i)
            for (const dwg::PolylineVertex& end : {m_pieces[i].vertices.front(), m_pieces[i].vertices.back()})
                if (meet(end.point, point))
                    pieces.push_back(i);
        return pieces;
    }

    /// Appends pieces to the chain's end.
    void extend(dwg::Polyline& chain)
    {
        for (;;) {
            const dwg::Point2 end = chain.vertices.back().point;
            const std::vector<std::size_t> pieces = piecesAt(end);
            if (pieces.size() != 2 || (m_used[pieces[0]] && m_used[pieces[1]]))
                return;
            const std::size_t next = m_used[pieces[0]] ? pieces[1] : pieces[0];
            m_used[next] = true;
            const bool forward = meet(m_pieces[next].vertices.front().point, end);
            const auto& [vertices, closed] = forward ? m_pieces[next] : turnedAround(m_pieces[next]);
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

    std::vector<dwg::Polyline> m_pieces;
    double m_tolerance;
    std::vector<bool> m_used;
};

} // namespace

std::vector<dwg::Polyline> chainPolylines(std::vector<dwg::Polyline> pieces, double tolerance)
{
    return Chainer(std::move(pieces), tolerance).chains();
}

} // namespace devcatalog
