#pragma once

#include "dev/host/model/HostModelSpace.h"

#include <pvInterface/pvDocument_c.h>

namespace devhost
{

/// A drawing; its id is its name.
class HostDocument final : public HostObject<pvDocument_c>
{
public:
    HostDocument(std::shared_ptr<HostContext> context, const QString& name, HostView& view);

    const QString& name() const { return id(); }
    /// @return the blocks placed in the drawing.
    const HostList<HostBlockInstance>& blocks() const { return m_model->sketchManager().blocks(); }

    pvResult GetModel(pvModel_c** model) override;

private:
    std::shared_ptr<HostModelSpace> m_model;
};

} // namespace devhost
