#pragma once

#include "dev/host/model/HostList.h"
#include "dev/host/model/HostRibbonCommandButton.h"

#include <pvInterface/pvRibbonRow_c.h>

namespace devhost
{

/// A row of a ribbon panel; its id is its API identifier.
class HostRibbonRow final : public HostObject<pvRibbonRow_c>
{
public:
    HostRibbonRow(std::shared_ptr<HostContext> context, const QString& apiID);

    /// Appends a button. @param apiID what it reports as API identifier. @return the button.
    HostRibbonCommandButton& addButton(const QString& apiID, HostRibbonCommandButton::Properties properties);
    /// Takes the button out of the row. @return whether it was in it.
    bool remove(const HostRibbonCommandButton& button);
    /// Takes out the buttons that the add-in inserted. @return whether there were any.
    bool removeButtonsOf(const QString& appID);

    const HostList<HostRibbonCommandButton>& buttons() const { return m_buttons; }
    /// For the gaps and strangers that callers are to see among the buttons.
    HostList<HostRibbonCommandButton>& buttons() { return m_buttons; }

    pvResult GetApiID(pvString* id) override;
    pvResult GetRibbonRowItems(pvObjectPtrArray* items) override;
    pvResult InsertRibbonCommandButton(const pvString& appID, pvRibbonButtonStyle_e style,
                                       const pvString& caption, const pvString& userCommandID,
                                       pvRibbonCommandButton_c** button) override;

private:
    HostList<HostRibbonCommandButton> m_buttons;
};

} // namespace devhost
