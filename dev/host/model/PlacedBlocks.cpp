#include "dev/host/model/PlacedBlocks.h"

namespace devhost
{

PlacedBlocks::PlacedBlocks(std::shared_ptr<HostContext> context, DrawingUnit unit,
                           const HostList<HostBlockInstance>& blocks)
    : m_context(std::move(context)), m_unit(unit), m_blocks(blocks)
{
    // Not the steps themselves, for what can be undone is only known after them.
    QObject::connect(&m_history, &QUndoStack::indexChanged, &m_context->changes, &HostChanges::blocksChanged);
}

void PlacedBlocks::place(const std::shared_ptr<HostBlockInstance>& block)
{
    m_history.push(new BlockStep(*this, BlockStep::Kind::Place, {{m_blocks.size(), block}}));
}

void PlacedBlocks::erase(const std::vector<std::shared_ptr<HostBlockInstance>>& blocks)
{
    BlockStep::Blocks erased;
    const auto all = m_blocks.objects();
    for (std::size_t i = 0; i < all.size(); ++i)
        if (std::find(blocks.begin(), blocks.end(), all[i]) != blocks.end())
            erased.emplace(i, all[i]);
    if (!erased.empty())
        m_history.push(new BlockStep(*this, BlockStep::Kind::Erase, std::move(erased)));
}

void PlacedBlocks::put(const BlockStep::Blocks& blocks)
{
    for (const auto& [position, block] : blocks)
        m_blocks.insert(position, block);
}

void PlacedBlocks::take(const BlockStep::Blocks& blocks)
{
    m_blocks.removeIf([&](const HostBlockInstance& candidate) {
        return std::any_of(blocks.begin(), blocks.end(),
                           [&](const auto& entry) { return entry.second.get() == &candidate; });
    });
}

} // namespace devhost
