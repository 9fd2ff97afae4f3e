#pragma once

#include <pvInterface/pvEnumerations.h>
#include <pvLibrary/pvObject.h>
#include <pvLibrary/pvString.h>

class pvObjectPtrArray;

/// A tab of the ribbon.
class pvRibbonTab_c : public pvObject
{
public:
    /// @param name receives the tab's name.
    virtual pvResult get_Name(pvString* name) = 0;

    /// @param id receives the tab's API identifier.
    virtual pvResult GetApiID(pvString* id) = 0;

    /// @param panels receives the tab's panels (pvRibbonPanel_c).
    virtual pvResult GetRibbonPanels(pvObjectPtrArray* panels) = 0;
};
