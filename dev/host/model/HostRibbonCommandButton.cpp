#include "dev/host/model/HostRibbonCommandButton.h"

#include "dev/host/model/HostRibbonRow.h"
#include "dev/host/model/HostText.h"

namespace devhost
{

HostRibbonCommandButton::HostRibbonCommandButton(std::shared_ptr<HostContext> context, const QString& apiID,
                                                 Properties properties, std::weak_ptr<HostRibbonRow> row)
    : HostObject(std::move(context), "RibbonRowItem", apiID),
      m_properties(std::move(properties)),
      m_row(std::move(row))
{
}

pvResult HostRibbonCommandButton::GetApiID(pvString* id)
{
    return call("GetApiID").giveValue(id, toPvString(this->id()));
}

pvResult HostRibbonCommandButton::Remove()
{
    const auto keptDuringTheCall = shared_from_this();
    const SdkCall answer = call("Remove");
    bool removed = false;
    if (answer.takesEffect()) {
        const auto row = m_row.lock();
        removed = row && row->remove(*this);
    }
    return answer.result(removed);
}

} // namespace devhost
