#pragma once

#include <pvInterface/pvEnumerations.h>
#include <pvLibrary/pvObject.h>

class pvModel_c;

/// A drawing.
class pvDocument_c : public pvObject
{
public:
    /// @param model receives the drawing's model space, borrowed.
    virtual pvResult GetModel(pvModel_c** model) = 0;
};
