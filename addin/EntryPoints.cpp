#include "addin/EntryPoints.h"

#include "addin/AddInSlot.h"
#include "addin/DockWidgetApplication.h"

#include <pvInterface/pvApplication_c.h>

namespace
{

/// The connected application object; null means not connected. Written by the two entry points only.
DockWidgetApplication* g_currentApplication = nullptr;

} // namespace

bool connectToPlotvane(int /*ignored*/, pvApplication_c* application)
{
    if (g_currentApplication != nullptr)
        return false;
    AddInSlot& slot = GetAddInSlot();
    slot.application = application;
    slot.applicationID = DockWidgetApplication::appID;
    g_currentApplication = new DockWidgetApplication(application);
    g_currentApplication->LoadTranslator();
    g_currentApplication->CreateUserInterfaceAndCommands();
    g_currentApplication->createDockWidget();
    return true;
}

bool disconnectFromPlotvane()
{
    if (g_currentApplication == nullptr)
        return true;
    g_currentApplication->RemoveRibbonRowItem();
    g_currentApplication->unLoadTranslator();
    if (pvApplication_c* application = GetAddInSlot().application)
        application->RemoveUserInterface(DockWidgetApplication::appID);
    delete g_currentApplication;
    g_currentApplication = nullptr;
    return true;
}

bool HasSignedByPlotvane(pvString* identifier, void* /*ignored2*/, void* /*ignored3*/, void* /*ignored4*/)
{
    if (identifier != nullptr)
        *identifier = DockWidgetApplication::appID.GetBuffer();
    return true;
}
