#include "dev/host/model/BlockStep.h"

#include "dev/host/model/PlacedBlocks.h"

namespace devhost
{

BlockStep::BlockStep(PlacedBlocks& drawing, Kind kind, Blocks blocks)
    : m_drawing(drawing), m_kind(kind), m_blocks(std::move(blocks))
{
    const QString what =
        m_blocks.size() == 1 ? m_blocks.begin()->second->name() : QString("%1 blocks").arg(m_blocks.size());
    setText((kind == Kind::Place ? QString("insert %1") : QString("erase %1")).arg(what));
}

void BlockStep::redo()
{
    if (m_kind == Kind::Place)
        m_drawing.put(m_blocks);
    else
        m_drawing.take(m_blocks);
}

void BlockStep::undo()
{
    if (m_kind == Kind::Place)
        m_drawing.take(m_blocks);
    else
        m_drawing.put(m_blocks);
}

} // namespace devhost
