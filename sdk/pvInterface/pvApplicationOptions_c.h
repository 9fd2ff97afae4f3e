#pragma once

#include <pvInterface/pvEnumerations.h>
#include <pvLibrary/pvObject.h>

/// The options of the host application.
class pvApplicationOptions_c : public pvObject
{
public:
    /// Reads a 16-bit option.
    /// @param value receives the option's value; where long has 64 bits the low 32, sign-extended, are it.
    virtual pvResult GetApplicationOptionInt16(pvApplicationOptionInt16_e option, long* value,
                                               pvGetApplicationOptionResult_e* result) = 0;
};
