#include "dev/host/model/HostRibbonPanel.h"

#include "dev/host/model/HostText.h"

namespace devhost
{

HostRibbonPanel::HostRibbonPanel(std::shared_ptr<HostContext> context, const QString& apiID, QString name,
                                 const QString& rowID)
    : HostObject(std::move(context), "RibbonPanel", apiID),
      m_name(std::move(name)),
      m_row(rowID.isEmpty() ? nullptr : std::make_shared<HostRibbonRow>(sharedContext(), rowID))
{
}

pvResult HostRibbonPanel::get_Name(pvString* name)
{
    return call("get_Name").giveValue(name, toPvString(m_name));
}

pvResult HostRibbonPanel::GetApiID(pvString* id)
{
    return call("GetApiID").giveValue(id, toPvString(this->id()));
}

pvResult HostRibbonPanel::GetRibbonRow(pvRibbonRow_c** row)
{
    return call("GetRibbonRow").giveObject(row, m_row.get());
}

} // namespace devhost
