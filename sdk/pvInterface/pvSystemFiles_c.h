#pragma once

#include <pvInterface/pvEnumerations.h>
#include <pvLibrary/pvObject.h>
#include <pvLibrary/pvString.h>

/// Paths of the host's own files.
class pvSystemFiles_c : public pvObject
{
public:
    /// @param path receives the path of the compiled help file.
    virtual pvResult get_HelpFile(pvString* path) = 0;
};
