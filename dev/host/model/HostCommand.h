#pragma once

#include "dev/host/model/HostObject.h"

#include <pvInterface/pvCommand_c.h>

namespace devhost
{

/// A command that an add-in registered; its id is its name.
class HostCommand final : public HostObject<pvCommand_c>
{
public:
    /// Event number of a command's execution.
    static constexpr int ExecuteEvent = 1;

    HostCommand(std::shared_ptr<HostContext> context, const QString& name, QString appID);

    const QString& name() const { return id(); }
    const QString& appID() const { return m_appID; }

    /// Calls the hook registered for the execution. @return what the hook answered; false without one.
    bool execute();

    pvResult RegisterEvent(pvCommandEvent_id_e event, void* context, void* hook) override;

private:
    using Hook = bool (*)(void* context);

    QString m_appID;
    Hook m_hook = nullptr;
    void* m_hookContext = nullptr;
};

} // namespace devhost
