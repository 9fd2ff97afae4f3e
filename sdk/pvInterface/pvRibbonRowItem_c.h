#pragma once

#include <pvInterface/pvEnumerations.h>
#include <pvLibrary/pvObject.h>
#include <pvLibrary/pvString.h>

/// An item of a ribbon row.
class pvRibbonRowItem_c : public pvObject
{
public:
    /// @param id receives the item's API identifier: for an inserted button the add-in identifier given then.
    virtual pvResult GetApiID(pvString* id) = 0;

    /// Takes the item out of its row. The pointer is not to be used afterwards.
    virtual pvResult Remove() = 0;
};
