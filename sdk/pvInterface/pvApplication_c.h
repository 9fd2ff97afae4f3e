#pragma once

#include <pvInterface/pvEnumerations.h>
#include <pvLibrary/pvObject.h>
#include <pvLibrary/pvString.h>

class pvApplicationOptions_c;
class pvCommandMessage_c;
class pvCommand_c;
class pvCustomPropertyControl_c;
class pvDocument_c;
class pvObjectPtrArray;
class pvSystemFiles_c;
class pvUserCommand_c;
class pvWorkspace_c;

/// The host application: the root of the host interface. Every call answers a result code.
class pvApplication_c : public pvObject
{
public:
    /// Registers a command under the add-in's identifier.
    /// @param error receives pvCreateCommand_Succeeded or the reason of the failure.
    /// @param command receives the command, borrowed; null on failure.
    virtual pvResult CreateCommand(const pvString& appID, const pvString& name, pvCreateCommandError_e* error,
                                   pvCommand_c** command) = 0;

    /// Registers a user command: what menu entries and ribbon buttons run.
    /// @param macro the text the command line gets when the user command runs.
    /// @param smallIcon, largeIcon paths of the icons.
    /// @param userCommand receives the user command, borrowed.
    virtual pvResult CreateUserCommand(const pvString& appID, const pvString& name, const pvString& macro,
                                       const pvString& description, const pvString& smallIcon,
                                       const pvString& largeIcon, pvUIState_e uiState,
                                       pvCreateCommandError_e* error, pvUserCommand_c** userCommand) = 0;

    /// @param menus receives the top-level menus (pvMenuItem_c) of that UI state.
    virtual pvResult GetMenuItems(pvUIState_e uiState, pvObjectPtrArray* menus) = 0;

    /// @param workspace receives the workspace of that name, borrowed; null when there is none.
    virtual pvResult GetWorkspace(const pvString& name, pvWorkspace_c** workspace) = 0;

    /// @param options receives the application's options, borrowed.
    virtual pvResult GetApplicationOptions(pvApplicationOptions_c** options) = 0;

    /// @param language receives the language of the host's user interface.
    virtual pvResult GetLanguage(pvLanguage_e* language) = 0;

    /// Creates a dockable pane.
    /// @param title the pane's title.
    /// @param control receives the pane's control, borrowed.
    virtual pvResult CreateCustomPropertyControl2(const pvString& title, pvCustomPropertyControlArea_e area,
                                                  long value, pvCustomPropertyControl_c** control) = 0;

    /// Drops every command, user command, menu entry and ribbon button registered under @p appID.
    virtual pvResult RemoveUserInterface(const pvString& appID) = 0;

    /// @param enabled receives whether help opens on the web.
    virtual pvResult IsWebHelpEnabled(bool* enabled) = 0;

    /// @param address receives the base address of the web help.
    virtual pvResult GetWebLink(pvString* address) = 0;

    /// Opens a web help page.
    /// @param result receives whether it was opened.
    virtual pvResult OpenWebHelp(const pvString& address, bool* result) = 0;

    /// @param files receives the paths of the host's own files, borrowed.
    virtual pvResult GetSystemFiles(pvSystemFiles_c** files) = 0;

    /// Opens a compiled HTML help file at a topic.
    /// @param result receives whether it was opened.
    virtual pvResult OpenChmHelp(long topic, const pvString& file, bool* result) = 0;

    /// @param document receives the active drawing, borrowed; null when none is open.
    virtual pvResult GetActiveDocument(pvDocument_c** document) = 0;

    /// @param message receives the command-line prompt service, borrowed.
    virtual pvResult GetCommandMessage(pvCommandMessage_c** message) = 0;
};
