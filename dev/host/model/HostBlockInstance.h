#pragma once

#include "dev/host/model/BlockGeometry.h"
#include "dev/host/model/BlockPrompt.h"
#include "dev/host/model/HostObject.h"

#include <pvInterface/pvBlockInstance_c.h>

namespace devhost
{

/// A block placed in a drawing; its id is its block's name.
class HostBlockInstance final : public HostObject<pvBlockInstance_c>
{
public:
    HostBlockInstance(std::shared_ptr<HostContext> context, const QString& name,
                      const BlockPlacement& placement, BlockGeometry geometry)
        : HostObject(std::move(context), "BlockInstance", name),
          m_placement(placement),
          m_geometry(std::move(geometry))
    {
    }

    const QString& name() const { return id(); }
    const BlockPlacement& placement() const { return m_placement; }
    const BlockGeometry& geometry() const { return m_geometry; }

private:
    BlockPlacement m_placement;
    BlockGeometry m_geometry;
};

} // namespace devhost
