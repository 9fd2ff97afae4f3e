#include "dev/host/model/HostDocument.h"

namespace devhost
{

HostDocument::HostDocument(std::shared_ptr<HostContext> context, const QString& name, HostView& view,
                           DrawingUnit unit, const HostList<HostBlockInstance>& blocks)
    : HostObject(std::move(context), "Document", name),
      m_content(std::make_shared<PlacedBlocks>(sharedContext(), unit, blocks)),
      m_model(std::make_shared<HostModelSpace>(sharedContext(), view, m_content))
{
}

pvResult HostDocument::GetModel(pvModel_c** model)
{
    return call("GetModel").giveObject(model, m_model.get());
}

} // namespace devhost
