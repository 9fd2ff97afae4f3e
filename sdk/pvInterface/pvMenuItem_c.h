#pragma once

#include <pvInterface/pvEnumerations.h>
#include <pvLibrary/pvObject.h>
#include <pvLibrary/pvString.h>

/// A menu, or an entry of one.
class pvMenuItem_c : public pvObject
{
public:
    /// @param id receives the menu's API identifier.
    virtual pvResult GetID(pvString* id) = 0;

    /// Inserts an entry into this menu.
    /// @param position index among the menu's entries, from 0.
    /// @param newItem receives the entry, borrowed.
    virtual pvResult InsertMenuItem(const pvString& appID, pvMenuItemType_e type, long position,
                                    const pvString& caption, const pvString& userCommandID,
                                    pvMenuItem_c** newItem) = 0;
};
