#pragma once

#include <pvInterface/pvEnumerations.h>
#include <pvLibrary/pvObject.h>
#include <pvLibrary/pvString.h>

/// A user command: caption, icons and macro behind menu entries and ribbon buttons.
class pvUserCommand_c : public pvObject
{
public:
    /// @param id receives the identifier that binds entries and buttons to this user command.
    virtual pvResult GetID(pvString* id) = 0;
};
