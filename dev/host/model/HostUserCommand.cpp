#include "dev/host/model/HostUserCommand.h"

#include "dev/host/model/HostText.h"

namespace devhost
{

HostUserCommand::HostUserCommand(std::shared_ptr<HostContext> context, const QString& id,
                                 Properties properties)
    : HostObject(std::move(context), "UserCommand", id), m_properties(std::move(properties))
{
}

pvResult HostUserCommand::GetID(pvString* id)
{
    return call("GetID").giveValue(id, toPvString(this->id()));
}

} // namespace devhost
