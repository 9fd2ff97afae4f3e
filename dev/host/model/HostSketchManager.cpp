#include "dev/host/model/HostSketchManager.h"

#include "dev/host/model/HostText.h"

#include <QFileInfo>

#include <cmath>

namespace devhost
{

namespace
{

bool isUsable(const BlockPlacement& placement)
{
    for (const double number : {placement.x, placement.y, placement.z, placement.rotation})
        if (!std::isfinite(number))
            return false;
    for (const double scale : {placement.scaleX, placement.scaleY, placement.scaleZ})
        if (!std::isfinite(scale) || scale == 0.0)
            return false;
    return true;
}

} // namespace

HostSketchManager::HostSketchManager(std::shared_ptr<HostContext> context, HostView& view,
                                     std::shared_ptr<PlacedBlocks> content)
    : HostObject(std::move(context), "SketchManager"), m_view(view), m_content(std::move(content))
{
}

pvResult HostSketchManager::InsertBlock2(const pvString& file, double x, double y, double z, double scaleX,
                                         double scaleY, double scaleZ, double rotation,
                                         pvBlockInstance_c** block)
{
    const SdkCall answer = call("InsertBlock2", file, x, y, z, scaleX, scaleY, scaleZ, rotation);
    HostBlockInstance* inserted = nullptr;
    if (answer.takesEffect())
        inserted = insert(toQString(file), {x, y, z, scaleX, scaleY, scaleZ, rotation});
    return answer.giveObject(block, inserted);
}

HostBlockInstance* HostSketchManager::insert(const QString& file, const BlockPlacement& placement)
{
    if (!isUsable(placement))
        return nullptr;
    std::optional<BlockGeometry> geometry = m_view.readBlock(file, m_content->unit());
    if (!geometry)
        return nullptr;
    const auto block = std::make_shared<HostBlockInstance>(
        sharedContext(), QFileInfo(file).completeBaseName(), placement, std::move(*geometry));
    m_content->place(block);
    emit context().changes.blockInserted(block->name(), {placement.x, placement.y});
    return block.get(); // The drawing keeps it.
}

} // namespace devhost
