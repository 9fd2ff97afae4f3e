#include "dev/host/model/HostApplication.h"

#include "dev/host/model/HostText.h"

namespace devhost
{

HostApplication::HostApplication(HostView& view)
    : HostObject(std::make_shared<HostContext>(), ""),
      m_view(view),
      m_settings(std::make_shared<HostSettings>()),
      m_options(std::make_shared<HostApplicationOptions>(sharedContext(), m_settings)),
      m_systemFiles(std::make_shared<HostSystemFiles>(sharedContext(), m_settings)),
      m_commandMessage(std::make_shared<HostCommandMessage>(sharedContext(), view))
{
}

HostMenuItem& HostApplication::addMenu(const QString& id, const QString& caption)
{
    return m_menus.add(
        std::make_shared<HostMenuItem>(sharedContext(), id, HostMenuItem::Properties{caption, {}, {}, {}}));
}

HostWorkspace& HostApplication::addWorkspace(const QString& name)
{
    return m_workspaces.add(std::make_shared<HostWorkspace>(sharedContext(), name));
}

HostCommand& HostApplication::addCommand(const QString& name, const QString& appID)
{
    return m_commands.add(std::make_shared<HostCommand>(sharedContext(), name, appID));
}

std::vector<std::shared_ptr<HostPane>> HostApplication::panes() const
{
    std::vector<std::shared_ptr<HostPane>> panes = m_panes.objects();
    panes.erase(
        std::remove_if(panes.begin(), panes.end(), [](const auto& pane) { return pane->view() == nullptr; }),
        panes.end());
    return panes;
}

std::shared_ptr<HostCommand> HostApplication::findCommand(const QString& name) const
{
    return m_commands.find(
        [&](const auto& command) { return command.name().compare(name, Qt::CaseInsensitive) == 0; });
}

std::shared_ptr<HostUserCommand> HostApplication::findUserCommand(const QString& id) const
{
    return m_userCommands.find([&](const auto& userCommand) { return userCommand.id() == id; });
}

bool HostApplication::runCommand(const QString& name)
{
    const auto command = findCommand(name);
    if (command)
        command->execute();
    return command != nullptr;
}

bool HostApplication::runUserCommand(const QString& id)
{
    const auto userCommand = findUserCommand(id);
    if (!userCommand)
        return false;
    QString macro = userCommand->properties().macro;
    const QString cancel = "^C";
    for (; macro.startsWith(cancel); macro.remove(0, cancel.size()))
        m_view.cancelPrompt();
    return runCommand(macro.trimmed());
}

HostDocument& HostApplication::newDocument()
{
    const QString name = QString("Drawing%1").arg(++m_documentCount);
    return addDocument(std::make_shared<HostDocument>(sharedContext(), name, m_view, m_unit));
}

HostDocument& HostApplication::openDocument(const QString& name, const BlockGeometry& geometry,
                                            DrawingUnit unit)
{
    HostList<HostBlockInstance> blocks;
    blocks.add(std::make_shared<HostBlockInstance>(sharedContext(), name, BlockPlacement(), geometry));
    return addDocument(std::make_shared<HostDocument>(sharedContext(), name, m_view, unit, blocks));
}

void HostApplication::setUnit(DrawingUnit unit)
{
    m_unit = unit;
    if (const auto document = activeDocument())
        document->content().setUnit(unit);
    emit changes().documentsChanged();
}

HostDocument& HostApplication::addDocument(const std::shared_ptr<HostDocument>& document)
{
    m_view.cancelPrompt();
    m_activeDocument = document;
    m_documents.add(document);
    emit changes().documentsChanged();
    return *document;
}

void HostApplication::closeActiveDocument()
{
    m_view.cancelPrompt();
    const auto closed = activeDocument();
    if (!closed)
        return;
    m_documents.removeIf([&](const auto& document) { return &document == closed.get(); });
    const auto others = m_documents.objects();
    m_activeDocument = others.empty() ? nullptr : others.back();
    emit changes().documentsChanged();
}

void HostApplication::activate(const HostDocument& document)
{
    if (&document == activeDocument().get())
        return;
    m_view.cancelPrompt();
    m_activeDocument = m_documents.find([&](const auto& candidate) { return &candidate == &document; });
    emit changes().documentsChanged();
}

pvResult HostApplication::CreateCommand(const pvString& appID, const pvString& name,
                                        pvCreateCommandError_e* error, pvCommand_c** command)
{
    const SdkCall answer = call("CreateCommand", appID, name);
    const pvCreateCommandError_e refusal =
        findCommand(toQString(name)) ? pvCreateCommand_CommandNameExisted : m_commandError;
    answer.giveValue(error, refusal);
    HostCommand* created = nullptr;
    if (answer.takesEffect() && refusal == pvCreateCommand_Succeeded)
        created = &addCommand(toQString(name), toQString(appID));
    return answer.giveObject(command, created);
}

pvResult HostApplication::CreateUserCommand(const pvString& appID, const pvString& name,
                                            const pvString& macro, const pvString& description,
                                            const pvString& smallIcon, const pvString& largeIcon,
                                            pvUIState_e uiState, pvCreateCommandError_e* error,
                                            pvUserCommand_c** userCommand)
{
    const SdkCall answer =
        call("CreateUserCommand", appID, name, macro, description, smallIcon, largeIcon, uiState);
    const QString id = "UserCommand_" + toQString(name);
    const bool taken = findUserCommand(id) != nullptr;
    answer.giveValue(error, taken ? pvCreateCommand_CommandNameExisted : pvCreateCommand_Succeeded);
    HostUserCommand* created = nullptr;
    if (answer.takesEffect() && !taken) {
        HostUserCommand::Properties properties{toQString(appID),     toQString(name),
                                               toQString(macro),     toQString(description),
                                               toQString(smallIcon), toQString(largeIcon)};
        created = &m_userCommands.add(
            std::make_shared<HostUserCommand>(sharedContext(), id, std::move(properties)));
    }
    return answer.giveObject(userCommand, created);
}

pvResult HostApplication::GetMenuItems(pvUIState_e uiState, pvObjectPtrArray* menus)
{
    const SdkCall answer = call("GetMenuItems", uiState);
    return answer.giveList(menus, uiState == MenuBarState ? m_menus : HostList<HostMenuItem>());
}

pvResult HostApplication::GetWorkspace(const pvString& name, pvWorkspace_c** workspace)
{
    const auto found =
        m_workspaces.find([&](const auto& candidate) { return candidate.name() == toQString(name); });
    return call("GetWorkspace", name).giveObject(workspace, found.get());
}

pvResult HostApplication::GetApplicationOptions(pvApplicationOptions_c** options)
{
    return call("GetApplicationOptions").giveObject(options, m_options.get());
}

pvResult HostApplication::GetLanguage(pvLanguage_e* language)
{
    return call("GetLanguage").giveValue(language, static_cast<pvLanguage_e>(m_settings->language));
}

pvResult HostApplication::CreateCustomPropertyControl2(const pvString& title,
                                                       pvCustomPropertyControlArea_e area, long value,
                                                       pvCustomPropertyControl_c** control)
{
    const SdkCall answer = call("CreateCustomPropertyControl2", title, area, value);
    return answer.giveObject(control, answer.takesEffect() ? createPane(toQString(title)) : nullptr);
}

HostPane* HostApplication::createPane(const QString& title)
{
    m_panes.removeIf([](const auto& pane) { return pane.view() == nullptr; });
    std::unique_ptr<PaneView> view = m_view.createPane(title);
    if (!view)
        return nullptr;
    return &m_panes.add(std::make_shared<HostPane>(sharedContext(), std::move(view)));
}

pvResult HostApplication::RemoveUserInterface(const pvString& appID)
{
    const SdkCall answer = call("RemoveUserInterface", appID);
    const QString owner = toQString(appID);
    const bool isAddIn = !owner.isEmpty(); // What is the host's own has no owner.
    if (isAddIn && answer.takesEffect())
        removeUserInterface(owner);
    return answer.result(isAddIn);
}

void HostApplication::removeUserInterface(const QString& appID)
{
    m_commands.removeIf([&](const auto& command) { return command.appID() == appID; });
    m_userCommands.removeIf([&](const auto& userCommand) { return userCommand.properties().appID == appID; });
    for (const auto& menu : m_menus.objects())
        menu->removeEntriesOf(appID);
    for (const auto& workspace : m_workspaces.objects())
        workspace->removeButtonsOf(appID);
    emit changes().menusChanged();
    emit changes().ribbonChanged();
}

pvResult HostApplication::IsWebHelpEnabled(bool* enabled)
{
    return call("IsWebHelpEnabled").giveValue(enabled, m_settings->webHelp);
}

pvResult HostApplication::GetWebLink(pvString* address)
{
    return call("GetWebLink").giveValue(address, toPvString(m_settings->webLink));
}

pvResult HostApplication::OpenWebHelp(const pvString& address, bool* result)
{
    const SdkCall answer = call("OpenWebHelp", address);
    return answer.giveValue(result, answer.takesEffect() && m_view.openWebHelp(toQString(address)));
}

pvResult HostApplication::GetSystemFiles(pvSystemFiles_c** files)
{
    return call("GetSystemFiles").giveObject(files, m_systemFiles.get());
}

pvResult HostApplication::OpenChmHelp(long topic, const pvString& file, bool* result)
{
    const SdkCall answer = call("OpenChmHelp", topic, file);
    return answer.giveValue(result, answer.takesEffect() && m_view.openHelpFile(toQString(file), topic));
}

pvResult HostApplication::GetActiveDocument(pvDocument_c** document)
{
    if (!activeDocument())
        emit changes().drawingMissed();
    return call("GetActiveDocument").giveObject(document, activeDocument().get());
}

pvResult HostApplication::GetCommandMessage(pvCommandMessage_c** message)
{
    return call("GetCommandMessage").giveObject(message, m_commandMessage.get());
}

} // namespace devhost
