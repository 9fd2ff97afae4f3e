#include "dev/host/model/HostMenuItem.h"

#include "dev/host/model/HostText.h"

namespace devhost
{

HostMenuItem::HostMenuItem(std::shared_ptr<HostContext> context, const QString& id, Properties properties)
    : HostObject(std::move(context), "MenuItem", id), m_properties(std::move(properties))
{
}

HostMenuItem& HostMenuItem::addEntry(const QString& caption, const QString& command)
{
    return m_entries.add(std::make_shared<HostMenuItem>(sharedContext(), command,
                                                        Properties{caption, command, QString(), QString()}));
}

bool HostMenuItem::removeEntriesOf(const QString& appID)
{
    bool any = m_entries.removeIf([&](const auto& entry) { return entry.properties().appID == appID; });
    for (const auto& entry : m_entries.objects())
        any |= entry->removeEntriesOf(appID);
    return any;
}

pvResult HostMenuItem::GetID(pvString* id)
{
    return call("GetID").giveValue(id, toPvString(this->id()));
}

pvResult HostMenuItem::InsertMenuItem(const pvString& appID, pvMenuItemType_e type, long position,
                                      const pvString& caption, const pvString& userCommandID,
                                      pvMenuItem_c** newItem)
{
    const SdkCall answer = call("InsertMenuItem", appID, type, position, caption, userCommandID);
    HostMenuItem* inserted = nullptr;
    if (answer.takesEffect() && position >= 0) {
        Properties properties{toQString(caption), QString(), toQString(appID), toQString(userCommandID)};
        inserted =
            &m_entries.insert(static_cast<std::size_t>(position),
                              std::make_shared<HostMenuItem>(sharedContext(), properties.appID, properties));
        emit context().changes.menusChanged();
    }
    return answer.giveObject(newItem, inserted);
}

} // namespace devhost
