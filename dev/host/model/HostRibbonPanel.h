#pragma once

#include "dev/host/model/HostRibbonRow.h"

#include <pvInterface/pvRibbonPanel_c.h>

namespace devhost
{

/// A panel of a ribbon tab; its id is its API identifier.
class HostRibbonPanel final : public HostObject<pvRibbonPanel_c>
{
public:
    /// @param rowID API identifier of the panel's row; empty for a panel without one.
    HostRibbonPanel(std::shared_ptr<HostContext> context, const QString& apiID, QString name,
                    const QString& rowID);

    const QString& name() const { return m_name; }
    /// @return the panel's row; null when it has none.
    const std::shared_ptr<HostRibbonRow>& row() const { return m_row; }

    pvResult get_Name(pvString* name) override;
    pvResult GetApiID(pvString* id) override;
    pvResult GetRibbonRow(pvRibbonRow_c** row) override;

private:
    QString m_name;
    std::shared_ptr<HostRibbonRow> m_row;
};

} // namespace devhost
