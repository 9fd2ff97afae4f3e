#include "dev/catalog/drawings/views/PolylineChain.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace devcatalog
{

namespace
{

/// A place where pieces end, with the pieces' indices.
struct Node {
    dwg::Point2 point;
    std::vector<std::size_t> pieces;
};

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
        for (std::size_t i = 0; i < m_pieces.size(); ++i) {
            nodeAt(m_pieces[i].vertices.front().point).pieces.push_back(i);
            nodeAt(m_pieces[i].vertices.back().point).pieces.push_back(i);
        }
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
            result.push_back(chain);
        }
        return result;
    }

private:
    bool meet(const dwg::Point2& a, const dwg::Point2& b) const
    {
        return std::hypot(b.x - a.x, b.y - a.y) < m_tolerance;
    }

    Node& nodeAt(const dwg::Point2& point)
    {
        const auto found = std::find_if(m_nodes.begin(), m_nodes.end(),
                                        [this, &point](const Node& node) { return meet(node.point, point); });
        if (found != m_nodes.end())
            return *found;
        m_nodes.push_back({point, {}});
        return m_nodes.back();
    }

    /// Appends pieces to the chain's end.
    void extend(dwg::Polyline& chain)
    {
        for (;;) {
            const Node& node = nodeAt(chain.vertices.back().point);
            const auto next = std::find_if(node.pieces.begin(), node.pieces.end(),
                                           [this](std::size_t piece) { return !m_used[piece]; });
            if (node.pieces.size() != 2 || next == node.pieces.end())
                return;
            m_used[*next] = true;
            const dwg::Polyline& piece = m_pieces[*next];
            const bool forward = meet(piece.vertices.front().point, node.point);
            const dwg::Polyline oriented = forward ? piece : turnedAround(piece);
            chain.vertices.back().bulge = oriented.vertices.front().bulge;
            chain.vertices.insert(chain.vertices.end(), oriented.vertices.begin() + 1,
                                  oriented.vertices.end());
        }
    }

    void close(dwg::Polyline& chain)
    {
        const std::size_t count = chain.vertices.size();
        if (count < 3 || !meet(chain.vertices.front().point, chain.vertices.back().point) ||
            nodeAt(chain.vertices.front().point).pieces.size() != 2)
            return;
        chain.vertices.pop_back();
        chain.closed = true;
    }

    std::vector<dwg::Polyline> m_pieces;
    double m_tolerance;
    std::vector<bool> m_used;
    std::vector<Node> m_nodes;
};

} // namespace

std::vector<dwg::Polyline> chainPolylines(std::vector<dwg::Polyline> pieces, double tolerance)
{
    return Chainer(std::move(pieces), tolerance).chains();
}

} // namespace devcatalog
