#pragma once

#include "dev/host/model/HostList.h"
#include "dev/host/model/HostObject.h"

#include <pvInterface/pvMenuItem_c.h>

namespace devhost
{

/// A menu, or an entry of one.
class HostMenuItem final : public HostObject<pvMenuItem_c>
{
public:
    struct Properties {
        QString caption; ///< Empty for a separator.
        QString command; ///< The host's own command that the entry runs; empty when it is not the host's.
        QString appID;   ///< Add-in that inserted the entry; empty when it is the host's own.
        QString userCommandID; ///< User command that an add-in's entry runs.
    };

    HostMenuItem(std::shared_ptr<HostContext> context, const QString& id, Properties properties);

    /// Appends an entry of the host's own. @param caption empty for a separator. @param command host command
    /// it runs. @return the entry.
    HostMenuItem& addEntry(const QString& caption, const QString& command);
    /// Drops the entries that the add-in inserted here or further below. @return whether there were any.
    bool removeEntriesOf(const QString& appID);

    const Properties& properties() const { return m_properties; }
    const HostList<HostMenuItem>& entries() const { return m_entries; }

    pvResult GetID(pvString* id) override;
    pvResult InsertMenuItem(const pvString& appID, pvMenuItemType_e type, long position,
                            const pvString& caption, const pvString& userCommandID,
                            pvMenuItem_c** newItem) override;

private:
    Properties m_properties;
    HostList<HostMenuItem> m_entries;
};

} // namespace devhost
