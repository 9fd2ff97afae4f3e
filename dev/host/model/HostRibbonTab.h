#pragma once

#include "dev/host/model/HostList.h"
#include "dev/host/model/HostRibbonPanel.h"

#include <pvInterface/pvRibbonTab_c.h>

namespace devhost
{

/// A tab of the ribbon; its id is its API identifier.
class HostRibbonTab final : public HostObject<pvRibbonTab_c>
{
public:
    HostRibbonTab(std::shared_ptr<HostContext> context, const QString& apiID, QString name);

    /// Appends a panel. @param rowID API identifier of its row; empty for a panel without one. @return the
    /// panel.
    HostRibbonPanel& addPanel(const QString& apiID, const QString& name, const QString& rowID);

    const QString& name() const { return m_name; }
    const HostList<HostRibbonPanel>& panels() const { return m_panels; }
    /// For the gaps and strangers that callers are to see among the panels.
    HostList<HostRibbonPanel>& panels() { return m_panels; }

    pvResult get_Name(pvString* name) override;
    pvResult GetApiID(pvString* id) override;
    pvResult GetRibbonPanels(pvObjectPtrArray* panels) override;

private:
    QString m_name;
    HostList<HostRibbonPanel> m_panels;
};

} // namespace devhost
