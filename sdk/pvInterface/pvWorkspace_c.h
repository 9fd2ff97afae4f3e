#pragma once

#include <pvInterface/pvEnumerations.h>
#include <pvLibrary/pvObject.h>

class pvObjectPtrArray;

/// A named arrangement of the ribbon.
class pvWorkspace_c : public pvObject
{
public:
    /// @param tabs receives the ribbon tabs (pvRibbonTab_c).
    virtual pvResult GetRibbonTabs(pvObjectPtrArray* tabs) = 0;
};
