#pragma once

#include "dev/host/model/HostObject.h"

#include <pvInterface/pvUserCommand_c.h>

namespace devhost
{

/// A user command: what menu entries and ribbon buttons run.
class HostUserCommand final : public HostObject<pvUserCommand_c>
{
public:
    struct Properties {
        QString appID;
        QString name;
        QString macro; ///< Command-line text; each "^C" in front cancels what is going on.
        QString description;
        QString smallIcon;
        QString largeIcon;
    };

    HostUserCommand(std::shared_ptr<HostContext> context, const QString& id, Properties properties);

    const Properties& properties() const { return m_properties; }

    pvResult GetID(pvString* id) override;

private:
    Properties m_properties;
};

} // namespace devhost
