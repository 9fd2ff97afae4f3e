#include "tests/addin/LoadedAddIn.h"

#include "tests/support/CannedReplies.h"

#include <QApplication>
#include <QEvent>

namespace test
{

const QString AddInIdentifier = "5B1C0F4E-27D3-4A96-8E21-0C7DA4E39F52";

LoadedAddIn::LoadedAddIn()
    : m_host(std::make_shared<devhost::HostApplication>(m_view)),
      m_widgetsBefore(QApplication::allWidgets().size()),
      m_library(ADDIN_LIBRARY)
{
    m_catalog.proxy().setRefusing(true);
    addInterface();
    if (!m_library.load())
        qCritical("The library does not load: %s", qPrintable(m_library.errorString()));
}

void LoadedAddIn::addInterface()
{
    m_host->addMenu("ID_File", "File");
    devhost::HostMenuItem& import = m_host->addMenu("ID_Import", "Import");
    for (const char* entry : {"Drawing", "PDF", "SVG", "Settings"})
        import.addEntry(entry, entry);
    m_host->addMenu("ID_Help", "Help");

    devhost::HostWorkspace& workspace = m_host->addWorkspace("Drafting and Annotation");
    workspace.addTab("ID_HomeTab", "Home").addPanel("ID_ImportPanel", "Import", "ID_ImportPANELROW");
    devhost::HostRibbonTab& tab = workspace.addTab("ID_ImportTab", "Import");
    tab.addPanel("ID_FirstPanel", "First", "ID_ImportPANELROW");
    devhost::HostRibbonRow& row = *tab.addPanel("ID_ImportPanel", "Import", "ID_ImportPANELROW").row();
    row.addButton("ID_IMPORT", {"Drawing", "IMPORT", QString()});
    row.addButton("OTHER-ADD-IN", {"Other", QString(), "UserCommand_Other"});
    tab.addPanel("ID_LastPanel", "Last", "ID_ImportPANELROW");
    workspace.addTab("ID_ViewTab", "View");
}

void LoadedAddIn::openCatalog(const QString& held)
{
    m_catalog.proxy().setRefusing(false);
    const auto serve = [&](const QString& key, const ScriptedReply& reply) {
        m_catalog.service().setReply(key, key == held ? reply.heldAfter(7) : reply);
    };
    for (const char* operation : {"ServiceLogin", "GenerateApiKeyByDescription", "UserLogin"})
        serve(operation, ScriptedReply::result(operation, "text"));
    serve("SimpleSearchAcrossCatalogs", searchReply(hits(1)));
    serve("GetConfigInfo", configurationsReply({"M8"}));
    serve("GetConfigParams", ScriptedReply::xml(ScriptedReply::envelope({})));
    serve("GetDownload2D",
          ScriptedReply::result("GetDownload2D", "https://" + ScriptedCatalog::host() + "/part.dwg"));
    serve("/part.dwg", ScriptedReply::status(200, "a drawing", "application/octet-stream"));
    serve("/pictures/part.png", pictureReply(pngPicture({8, 8})));
}

QStringList LoadedAddIn::leave()
{
    QStringList left;
    if (!m_library.disconnect())
        left.append("a connection");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (m_host->references().outstanding() != 0)
        left.append(QString("%1 references").arg(m_host->references().outstanding()));
    for (const QString& object : m_host->references().errors())
        left.append("a reference too few: " + object);
    const int hostWidgets = m_view.paneWidget() != nullptr ? 1 : 0; // where the host keeps its pane
    if (QApplication::allWidgets().size() != m_widgetsBefore + hostWidgets)
        left.append("widgets");
    if (!m_library.unload())
        left.append("the library");
    return left;
}

QStringList LoadedAddIn::takeCalls()
{
    QStringList lines = m_host->journal().lines();
    m_host->journal().clear();
    return lines;
}

QStringList LoadedAddIn::registrations() const
{
    QStringList lines;
    for (const auto& command : m_host->commands().objects())
        if (command->appID() == AddInIdentifier)
            lines.append("command " + command->name());
    for (const auto& userCommand : m_host->userCommands().objects())
        lines.append("user command " + userCommand->id());
    for (const auto& menu : m_host->menus().objects()) {
        const auto entries = menu->entries().objects();
        for (std::size_t i = 0; i < entries.size(); ++i) {
            const devhost::HostMenuItem::Properties& entry = entries[i]->properties();
            if (entry.appID == AddInIdentifier)
                lines.append(
                    QString("%1/%2: %3 %4").arg(menu->id()).arg(i).arg(entry.caption, entry.userCommandID));
        }
    }
    for (const auto& workspace : m_host->workspaces().objects()) {
        for (const auto& tab : workspace->tabs().objects()) {
            for (const auto& panel : tab->panels().objects()) {
                if (panel->row() == nullptr)
                    continue;
                for (const auto& button : panel->row()->buttons().objects()) {
                    if (button->id() == AddInIdentifier)
                        lines.append(QString("%1/%2: %3 %4")
                                         .arg(tab->id(), panel->id(), button->properties().caption,
                                              button->properties().userCommandID));
                }
            }
        }
    }
    return lines;
}

QWidget* LoadedAddIn::findShown(const char* className, const QString& name) const
{
    QWidget* found = nullptr;
    if (m_view.paneWidget() == nullptr)
        return nullptr;
    for (QWidget* widget : m_view.paneWidget()->findChildren<QWidget*>(name)) {
        if (!widget->inherits(className) || !widget->isVisible())
            continue;
        if (found != nullptr)
            return nullptr;
        found = widget;
    }
    return found;
}

} // namespace test
