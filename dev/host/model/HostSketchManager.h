#pragma once

#include "dev/host/model/HostView.h"
#include "dev/host/model/PlacedBlocks.h"

#include <pvInterface/pvSketchManager_c.h>

namespace devhost
{

/// Creates the blocks of one drawing.
class HostSketchManager final : public HostObject<pvSketchManager_c>
{
public:
    /// @param view reads drawing files; stays the caller's. @param content gets the blocks.
    HostSketchManager(std::shared_ptr<HostContext> context, HostView& view,
                      std::shared_ptr<PlacedBlocks> content);

    pvResult InsertBlock2(const pvString& file, double x, double y, double z, double scaleX, double scaleY,
                          double scaleZ, double rotation, pvBlockInstance_c** block) override;

private:
    /// @return the new block; null when the file cannot be read or a number cannot be used.
    HostBlockInstance* insert(const QString& file, const BlockPlacement& placement);

    HostView& m_view;
    std::shared_ptr<PlacedBlocks> m_content;
};

} // namespace devhost
