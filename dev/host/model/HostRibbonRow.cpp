#include "dev/host/model/HostRibbonRow.h"

#include "dev/host/model/HostText.h"

namespace devhost
{

HostRibbonRow::HostRibbonRow(std::shared_ptr<HostContext> context, const QString& apiID)
    : HostObject(std::move(context), "RibbonRow", apiID)
{
}

HostRibbonCommandButton& HostRibbonRow::addButton(const QString& apiID,
                                                  HostRibbonCommandButton::Properties properties)
{
    const auto self = std::static_pointer_cast<HostRibbonRow>(shared_from_this());
    return m_buttons.add(
        std::make_shared<HostRibbonCommandButton>(sharedContext(), apiID, std::move(properties), self));
}

bool HostRibbonRow::remove(const HostRibbonCommandButton& button)
{
    const bool removed = m_buttons.removeIf([&](const auto& candidate) { return &candidate == &button; });
    if (removed)
        emit context().changes.ribbonChanged();
    return removed;
}

bool HostRibbonRow::removeButtonsOf(const QString& appID)
{
    return m_buttons.removeIf([&](const auto& button) { return button.id() == appID; });
}

pvResult HostRibbonRow::GetApiID(pvString* id)
{
    return call("GetApiID").giveValue(id, toPvString(this->id()));
}

pvResult HostRibbonRow::GetRibbonRowItems(pvObjectPtrArray* items)
{
    return call("GetRibbonRowItems").giveList(items, m_buttons);
}

pvResult HostRibbonRow::InsertRibbonCommandButton(const pvString& appID, pvRibbonButtonStyle_e style,
                                                  const pvString& caption, const pvString& userCommandID,
                                                  pvRibbonCommandButton_c** button)
{
    const SdkCall answer = call("InsertRibbonCommandButton", appID, style, caption, userCommandID);
    HostRibbonCommandButton* inserted = nullptr;
    if (answer.takesEffect()) {
        inserted = &addButton(toQString(appID), {toQString(caption), QString(), toQString(userCommandID)});
        emit context().changes.ribbonChanged();
    }
    return answer.giveObject(button, inserted);
}

} // namespace devhost
