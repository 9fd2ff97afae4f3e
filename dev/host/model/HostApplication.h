#pragma once

#include "dev/host/model/HostApplicationOptions.h"
#include "dev/host/model/HostCommand.h"
#include "dev/host/model/HostCommandMessage.h"
#include "dev/host/model/HostDocument.h"
#include "dev/host/model/HostMenuItem.h"
#include "dev/host/model/HostPane.h"
#include "dev/host/model/HostSettings.h"
#include "dev/host/model/HostSystemFiles.h"
#include "dev/host/model/HostUserCommand.h"
#include "dev/host/model/HostWorkspace.h"

#include <pvInterface/pvApplication_c.h>

namespace devhost
{

/// The host application: owns the commands, menus, workspaces, panes and drawings that add-ins see.
///
/// It starts without any; addDraftingInterface() gives it those of a CAD program. To be made by
/// std::make_shared. The calls of pvApplication_c are the add-in's, all others the host's.
class HostApplication final : public HostObject<pvApplication_c>
{
public:
    /// UI state whose menus the host shows.
    static constexpr int MenuBarState = 2;

    /// @param view does what needs a user interface; it must outlive the application.
    explicit HostApplication(HostView& view);

    Journal& journal() { return context().journal; }
    StubbedAnswers& answers() { return context().answers; }
    ReferenceLedger& references() { return context().references; }
    HostChanges& changes() { return context().changes; }
    HostSettings& settings() { return *m_settings; }

    /// Appends a top-level menu. @return the menu.
    HostMenuItem& addMenu(const QString& id, const QString& caption);
    /// Appends a workspace. @return the workspace.
    HostWorkspace& addWorkspace(const QString& name);
    /// Takes a command name, as another add-in would. @return the command.
    HostCommand& addCommand(const QString& name, const QString& appID = QString());
    /// Has every CreateCommand() fail with that error from now on.
    void refuseCommands(pvCreateCommandError_e error) { m_commandError = error; }

    const HostList<HostMenuItem>& menus() const { return m_menus; }
    /// For the gaps and strangers that callers are to see among the menus.
    HostList<HostMenuItem>& menus() { return m_menus; }
    const HostList<HostWorkspace>& workspaces() const { return m_workspaces; }
    const HostList<HostCommand>& commands() const { return m_commands; }
    const HostList<HostUserCommand>& userCommands() const { return m_userCommands; }
    /// @return the panes that exist.
    std::vector<std::shared_ptr<HostPane>> panes() const;

    /// @return the user command of that identifier; null when there is none.
    std::shared_ptr<HostUserCommand> findUserCommand(const QString& id) const;

    /// Runs an add-in's command by its name, in any letter case. @return whether there is one.
    bool runCommand(const QString& name);
    /// Runs the macro of a user command. @return whether there was something to run.
    bool runUserCommand(const QString& id);

    /// Opens a new empty drawing and makes it the active one. @return the drawing.
    HostDocument& newDocument();
    /// Opens what was read of a drawing file, which is one block at the origin, and makes it the active
    /// drawing. @return the drawing.
    HostDocument& openDocument(const QString& name, const BlockGeometry& geometry, DrawingUnit unit);
    /// Gives the active drawing another unit, and new ones from now on.
    void setUnit(DrawingUnit unit);
    /// Closes the active drawing; the last one opened of the others becomes active. An open prompt is
    /// cancelled.
    void closeActiveDocument();
    /// Makes one of documents() the active one. An open prompt is cancelled.
    void activate(const HostDocument& document);
    const HostList<HostDocument>& documents() const { return m_documents; }
    /// @return the active drawing; null when none is open.
    std::shared_ptr<HostDocument> activeDocument() const { return m_activeDocument.lock(); }

    // pvApplication_c
    pvResult CreateCommand(const pvString& appID, const pvString& name, pvCreateCommandError_e* error,
                           pvCommand_c** command) override;
    pvResult CreateUserCommand(const pvString& appID, const pvString& name, const pvString& macro,
                               const pvString& description, const pvString& smallIcon,
                               const pvString& largeIcon, pvUIState_e uiState, pvCreateCommandError_e* error,
                               pvUserCommand_c** userCommand) override;
    pvResult GetMenuItems(pvUIState_e uiState, pvObjectPtrArray* menus) override;
    pvResult GetWorkspace(const pvString& name, pvWorkspace_c** workspace) override;
    pvResult GetApplicationOptions(pvApplicationOptions_c** options) override;
    pvResult GetLanguage(pvLanguage_e* language) override;
    pvResult CreateCustomPropertyControl2(const pvString& title, pvCustomPropertyControlArea_e area,
                                          long value, pvCustomPropertyControl_c** control) override;
    pvResult RemoveUserInterface(const pvString& appID) override;
    pvResult IsWebHelpEnabled(bool* enabled) override;
    pvResult GetWebLink(pvString* address) override;
    pvResult OpenWebHelp(const pvString& address, bool* result) override;
    pvResult GetSystemFiles(pvSystemFiles_c** files) override;
    pvResult OpenChmHelp(long topic, const pvString& file, bool* result) override;
    pvResult GetActiveDocument(pvDocument_c** document) override;
    pvResult GetCommandMessage(pvCommandMessage_c** message) override;

private:
    std::shared_ptr<HostCommand> findCommand(const QString& name) const;
    HostDocument& addDocument(const std::shared_ptr<HostDocument>& document);
    HostPane* createPane(const QString& title);
    void removeUserInterface(const QString& appID);

    HostView& m_view;
    std::shared_ptr<HostSettings> m_settings;
    std::shared_ptr<HostApplicationOptions> m_options;
    std::shared_ptr<HostSystemFiles> m_systemFiles;
    std::shared_ptr<HostCommandMessage> m_commandMessage;
    HostList<HostCommand> m_commands;
    HostList<HostUserCommand> m_userCommands;
    HostList<HostMenuItem> m_menus;
    HostList<HostWorkspace> m_workspaces;
    HostList<HostPane> m_panes;
    HostList<HostDocument> m_documents;
    std::weak_ptr<HostDocument> m_activeDocument;
    pvCreateCommandError_e m_commandError = pvCreateCommand_Succeeded;
    int m_documentCount = 0;
    DrawingUnit m_unit = DrawingUnit::Centimetre; // The catalog's.
};

} // namespace devhost
