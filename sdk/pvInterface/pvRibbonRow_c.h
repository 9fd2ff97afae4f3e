#pragma once

#include <pvInterface/pvEnumerations.h>
#include <pvLibrary/pvObject.h>
#include <pvLibrary/pvString.h>

class pvObjectPtrArray;
class pvRibbonCommandButton_c;

/// A row of a ribbon panel.
class pvRibbonRow_c : public pvObject
{
public:
    /// @param id receives the row's API identifier.
    virtual pvResult GetApiID(pvString* id) = 0;

    /// @param items receives a snapshot of the row's items (pvRibbonRowItem_c).
    virtual pvResult GetRibbonRowItems(pvObjectPtrArray* items) = 0;

    /// Appends a button that runs a user command.
    /// @param button receives the button, borrowed.
    virtual pvResult InsertRibbonCommandButton(const pvString& appID, pvRibbonButtonStyle_e style,
                                               const pvString& caption, const pvString& userCommandID,
                                               pvRibbonCommandButton_c** button) = 0;
};
