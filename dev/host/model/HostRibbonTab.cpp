#include "dev/host/model/HostRibbonTab.h"

#include "dev/host/model/HostText.h"

namespace devhost
{

HostRibbonTab::HostRibbonTab(std::shared_ptr<HostContext> context, const QString& apiID, QString name)
    : HostObject(std::move(context), "RibbonTab", apiID), m_name(std::move(name))
{
}

HostRibbonPanel& HostRibbonTab::addPanel(const QString& apiID, const QString& name, const QString& rowID)
{
    return m_panels.add(std::make_shared<HostRibbonPanel>(sharedContext(), apiID, name, rowID));
}

pvResult HostRibbonTab::get_Name(pvString* name)
{
    return call("get_Name").giveValue(name, toPvString(m_name));
}

pvResult HostRibbonTab::GetApiID(pvString* id)
{
    return call("GetApiID").giveValue(id, toPvString(this->id()));
}

pvResult HostRibbonTab::GetRibbonPanels(pvObjectPtrArray* panels)
{
    return call("GetRibbonPanels").giveList(panels, m_panels);
}

} // namespace devhost
