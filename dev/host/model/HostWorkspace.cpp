#include "dev/host/model/HostWorkspace.h"

namespace devhost
{

HostWorkspace::HostWorkspace(std::shared_ptr<HostContext> context, const QString& name)
    : HostObject(std::move(context), "Workspace", name)
{
}

HostRibbonTab& HostWorkspace::addTab(const QString& apiID, const QString& name)
{
    return m_tabs.add(std::make_shared<HostRibbonTab>(sharedContext(), apiID, name));
}

bool HostWorkspace::removeButtonsOf(const QString& appID)
{
    bool any = false;
    for (const auto& tab : m_tabs.objects()) {
        for (const auto& panel : tab->panels().objects())
            if (panel->row())
                any |= panel->row()->removeButtonsOf(appID);
    }
    return any;
}

pvResult HostWorkspace::GetRibbonTabs(pvObjectPtrArray* tabs)
{
    return call("GetRibbonTabs").giveList(tabs, m_tabs);
}

} // namespace devhost
