#pragma once

#include "addin/Export.h"

class pvApplication_c;
class pvString;

extern "C" {

/// Connects the add-in: creates its application object, loads the translation, registers the command with its
/// menu entry and ribbon button, and docks the pane.
/// @param application the host, borrowed; null leaves out whatever needs it.
/// @return false when the add-in is connected already; true otherwise, whatever failed inside.
DOCKWIDGET_API bool connectToPlotvane(int ignored, pvApplication_c* application);

/// Undoes the connect. @return true, also when the add-in is not connected.
DOCKWIDGET_API bool disconnectFromPlotvane();

/// @param identifier receives the add-in's identifier; connected or not.
/// @return true.
DOCKWIDGET_API bool HasSignedByPlotvane(pvString* identifier, void* ignored2, void* ignored3, void* ignored4);
}
