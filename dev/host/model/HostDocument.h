#pragma once

#include "dev/host/model/HostModelSpace.h"

#include <pvInterface/pvDocument_c.h>

namespace devhost
{

/// A drawing; its id is its name.
class HostDocument final : public HostObject<pvDocument_c>
{
public:
    /// @param unit what the drawing's numbers stand for. @param blocks which the drawing begins with.
    HostDocument(std::shared_ptr<HostContext> context, const QString& name, HostView& view, DrawingUnit unit,
                 const HostList<HostBlockInstance>& blocks = {});

    const QString& name() const { return id(); }
    /// @return the blocks placed in the drawing.
    const HostList<HostBlockInstance>& blocks() const { return m_content->blocks(); }
    PlacedBlocks& content() { return *m_content; }
    const PlacedBlocks& content() const { return *m_content; }

    pvResult GetModel(pvModel_c** model) override;

private:
    std::shared_ptr<PlacedBlocks> m_content; // Callers may keep a model longer than its drawing.
    std::shared_ptr<HostModelSpace> m_model;
};

} // namespace devhost
