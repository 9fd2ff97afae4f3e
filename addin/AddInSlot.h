#pragma once

#include <pvLibrary/pvString.h>

class pvApplication_c;

/// What the last connect was with: the disconnect finds the host here. Keeps its values after a disconnect;
/// the next connect overwrites them.
struct AddInSlot {
    pvApplication_c* application = nullptr; ///< The host, borrowed; null until the first connect.
    pvString applicationID;                 ///< The add-in's identifier; empty until the first connect.
};

/// @return the process's slot, made on first use.
AddInSlot& GetAddInSlot();
