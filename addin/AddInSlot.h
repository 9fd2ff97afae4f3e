#pragma once

#include <pvLibrary/pvString.h>

class pvApplication_c;

/// What the disconnect needs to know of the connect. Keeps its values after a disconnect; the next connect
/// overwrites them.
struct AddInSlot {
    pvApplication_c* application = nullptr; ///< The host, borrowed; null until the first connect.
    pvString applicationID;                 ///< The add-in's identifier; empty until the first connect.
};

/// @return the process's slot, made on first use.
AddInSlot& GetAddInSlot();
