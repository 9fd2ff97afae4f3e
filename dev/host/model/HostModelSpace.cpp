#include "dev/host/model/HostModelSpace.h"

namespace devhost
{

HostModelSpace::HostModelSpace(std::shared_ptr<HostContext> context, HostView& view,
                               std::shared_ptr<PlacedBlocks> content)
    : HostObject(std::move(context), "Model"),
      m_sketchManager(std::make_shared<HostSketchManager>(sharedContext(), view, std::move(content)))
{
}

pvResult HostModelSpace::GetSketchManager(pvSketchManager_c** manager)
{
    return call("GetSketchManager").giveObject(manager, m_sketchManager.get());
}

} // namespace devhost
