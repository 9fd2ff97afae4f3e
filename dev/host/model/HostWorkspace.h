#pragma once

#include "dev/host/model/HostList.h"
#include "dev/host/model/HostRibbonTab.h"

#include <pvInterface/pvWorkspace_c.h>

namespace devhost
{

/// A named arrangement of the ribbon; its id is its name.
class HostWorkspace final : public HostObject<pvWorkspace_c>
{
public:
    HostWorkspace(std::shared_ptr<HostContext> context, const QString& name);

    /// Appends a tab. @return the tab.
    HostRibbonTab& addTab(const QString& apiID, const QString& name);
    /// Takes out the buttons that the add-in inserted in any row. @return whether there were any.
    bool removeButtonsOf(const QString& appID);

    const QString& name() const { return id(); }
    const HostList<HostRibbonTab>& tabs() const { return m_tabs; }
    /// For the gaps and strangers that callers are to see among the tabs.
    HostList<HostRibbonTab>& tabs() { return m_tabs; }

    pvResult GetRibbonTabs(pvObjectPtrArray* tabs) override;

private:
    HostList<HostRibbonTab> m_tabs;
};

} // namespace devhost
