#pragma once

#include <pvInterface/pvEnumerations.h>
#include <pvLibrary/pvObject.h>
#include <pvLibrary/pvString.h>

class pvRibbonRow_c;

/// A panel of a ribbon tab.
class pvRibbonPanel_c : public pvObject
{
public:
    /// @param name receives the panel's name.
    virtual pvResult get_Name(pvString* name) = 0;

    /// @param id receives the panel's API identifier.
    virtual pvResult GetApiID(pvString* id) = 0;

    /// @param row receives the panel's row, borrowed.
    virtual pvResult GetRibbonRow(pvRibbonRow_c** row) = 0;
};
