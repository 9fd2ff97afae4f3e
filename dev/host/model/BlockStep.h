#pragma once

#include "dev/host/model/HostBlockInstance.h"

#include <QUndoCommand>

#include <map>

namespace devhost
{

class PlacedBlocks;

/// One step of a drawing's history: blocks came or went.
class BlockStep final : public QUndoCommand
{
public:
    enum class Kind { Place, Erase };
    /// Blocks by their positions in the drawing, the rearmost first.
    using Blocks = std::map<std::size_t, std::shared_ptr<HostBlockInstance>>;

    /// @param drawing has this step in its history.
    BlockStep(PlacedBlocks& drawing, Kind kind, Blocks blocks);

    void redo() override;
    void undo() override;

private:
    PlacedBlocks& m_drawing;
    Kind m_kind;
    Blocks m_blocks;
};

} // namespace devhost
