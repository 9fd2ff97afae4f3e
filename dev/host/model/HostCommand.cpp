#include "dev/host/model/HostCommand.h"

namespace devhost
{

HostCommand::HostCommand(std::shared_ptr<HostContext> context, const QString& name, QString appID)
    : HostObject(std::move(context), "Command", name), m_appID(std::move(appID))
{
}

bool HostCommand::execute()
{
    const auto keptDuringTheCall = shared_from_this();
    return m_hook != nullptr && m_hook(m_hookContext);
}

pvResult HostCommand::RegisterEvent(pvCommandEvent_id_e event, void* context, void* hook)
{
    const SdkCall answer = call("RegisterEvent", event, context, hook);
    const bool known = event == ExecuteEvent;
    if (known && answer.takesEffect()) {
        m_hook = reinterpret_cast<Hook>(hook);
        m_hookContext = context;
    }
    return answer.result(known);
}

} // namespace devhost
