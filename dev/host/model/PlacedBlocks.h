#pragma once

#include "dev/host/model/BlockStep.h"
#include "dev/host/model/DrawingUnit.h"
#include "dev/host/model/HostList.h"

#include <QUndoStack>

namespace devhost
{

/// What a drawing holds: its blocks in the order in which they are drawn, how they came there, and what its
/// numbers stand for.
class PlacedBlocks
{
public:
    /// @param context announces changes.
    /// @param unit of the drawing. @param blocks which the drawing begins with.
    PlacedBlocks(std::shared_ptr<HostContext> context, DrawingUnit unit,
                 const HostList<HostBlockInstance>& blocks);

    const HostList<HostBlockInstance>& blocks() const { return m_blocks; }
    /// @return what can be undone and done again.
    QUndoStack& history() { return m_history; }
    const QUndoStack& history() const { return m_history; }

    DrawingUnit unit() const { return m_unit; }
    /// Blocks that are there already stay as they are, as in CAD programs.
    void setUnit(DrawingUnit unit) { m_unit = unit; }

    /// Both are steps of the history.
    void place(const std::shared_ptr<HostBlockInstance>& block);
    void erase(const std::vector<std::shared_ptr<HostBlockInstance>>& blocks);

private:
    friend class BlockStep;
    void put(const BlockStep::Blocks& blocks);
    void take(const BlockStep::Blocks& blocks);

    std::shared_ptr<HostContext> m_context;
    DrawingUnit m_unit;
    HostList<HostBlockInstance> m_blocks;
    QUndoStack m_history;
};

} // namespace devhost
