#pragma once

#include "dev/host/model/HostObject.h"

#include <pvInterface/pvRibbonCommandButton_c.h>

namespace devhost
{

class HostRibbonRow;

/// A button in a row of the ribbon. Its id, which it reports as API identifier, is for an inserted button the
/// identifier of the add-in that inserted it.
class HostRibbonCommandButton final : public HostObject<pvRibbonCommandButton_c>
{
public:
    struct Properties {
        QString caption;
        QString command; ///< The host's own command that the button runs; empty when it is not the host's.
        QString userCommandID; ///< User command that an inserted button runs; empty for the host's own.
    };

    /// @param row the row it stands in, or stood in.
    HostRibbonCommandButton(std::shared_ptr<HostContext> context, const QString& apiID, Properties properties,
                            std::weak_ptr<HostRibbonRow> row);

    const Properties& properties() const { return m_properties; }

    pvResult GetApiID(pvString* id) override;
    pvResult Remove() override;

private:
    Properties m_properties;
    std::weak_ptr<HostRibbonRow> m_row;
};

} // namespace devhost
