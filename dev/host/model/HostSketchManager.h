#pragma once

#include "dev/host/model/HostBlockInstance.h"
#include "dev/host/model/HostList.h"
#include "dev/host/model/HostView.h"

#include <pvInterface/pvSketchManager_c.h>

namespace devhost
{

/// Creates the blocks of one drawing, and holds them.
class HostSketchManager final : public HostObject<pvSketchManager_c>
{
public:
    /// @param view reads drawing files; stays the caller's.
    HostSketchManager(std::shared_ptr<HostContext> context, HostView& view);

    const HostList<HostBlockInstance>& blocks() const { return m_blocks; }

    pvResult InsertBlock2(const pvString& file, double x, double y, double z, double scaleX, double scaleY,
                          double scaleZ, double rotation, pvBlockInstance_c** block) override;

private:
    /// @return the new block; null when the file cannot be read or a number cannot be used.
    HostBlockInstance* insert(const QString& file, const BlockPlacement& placement);

    HostView& m_view;
    HostList<HostBlockInstance> m_blocks;
};

} // namespace devhost
