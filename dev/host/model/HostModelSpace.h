#pragma once

#include "dev/host/model/HostSketchManager.h"

#include <pvInterface/pvModel_c.h>

namespace devhost
{

/// The model space of a drawing.
class HostModelSpace final : public HostObject<pvModel_c>
{
public:
    HostModelSpace(std::shared_ptr<HostContext> context, HostView& view,
                   std::shared_ptr<PlacedBlocks> content);

    pvResult GetSketchManager(pvSketchManager_c** manager) override;

private:
    std::shared_ptr<HostSketchManager> m_sketchManager;
};

} // namespace devhost
