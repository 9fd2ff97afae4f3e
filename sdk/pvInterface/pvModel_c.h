#pragma once

#include <pvInterface/pvEnumerations.h>
#include <pvLibrary/pvObject.h>

class pvSketchManager_c;

/// The model space of a drawing.
class pvModel_c : public pvObject
{
public:
    /// @param manager receives what creates entities in this model space, borrowed.
    virtual pvResult GetSketchManager(pvSketchManager_c** manager) = 0;
};
