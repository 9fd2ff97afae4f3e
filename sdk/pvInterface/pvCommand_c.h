#pragma once

#include <pvInterface/pvEnumerations.h>
#include <pvLibrary/pvObject.h>

/// A command of the host's command line.
class pvCommand_c : public pvObject
{
public:
    /// Has the host call a hook on an event of the command.
    /// @param context handed to the hook as it stands.
    /// @param hook a `bool (*)(void* context)`.
    virtual pvResult RegisterEvent(pvCommandEvent_id_e event, void* context, void* hook) = 0;
};
