#include "dev/host/headless/PaneUser.h"
#include "tests/addin/LoadedAddIn.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using devhost::Outcome;

namespace
{

// What a user sees of the add-in, in the order of effectsOfAScenario().
const QString Command = "command toggles the pane";
const QString LightIcon = "light icon";
const QString MenuEntry = "menu entry";
const QString Button = "ribbon button";
const QString Binding = "entry and button run the user command";
const QString HelpFile = "help file";
const QString WebHelp = "web help";
const QString Login = "login";
const QString Prompt = "prompt";
const QString Block = "block";
const QString CleanEnd = "nothing left in the host";

/// One SDK call and what is lost when it does nothing.
struct Failure {
    const char* call;
    QStringList lost;
};

const QStringList All{Command, LightIcon, MenuEntry, Button, Binding, HelpFile,
                      WebHelp, Login,     Prompt,    Block,  CleanEnd};
const QStringList Panel{HelpFile, WebHelp, Login, Prompt, Block};

const Failure Failures[] = {
    {"GetLanguage", {}},
    {"CreateCommand", {Command}},
    {"Command.RegisterEvent", {Command}},
    {"GetApplicationOptions", {LightIcon}},
    {"ApplicationOptions.GetApplicationOptionInt16", {}},
    {"CreateUserCommand", {LightIcon, Binding}},
    {"UserCommand.GetID", {Binding}},
    {"GetMenuItems", {MenuEntry, Binding}},
    {"MenuItem.GetID", {MenuEntry, Binding}}, // in the last menu
    {"MenuItem.InsertMenuItem", {MenuEntry, Binding}},
    {"GetWorkspace", {Button, Binding}},
    {"Workspace.GetRibbonTabs", {Button, Binding}},
    {"RibbonTab.get_Name", {}},
    {"RibbonTab.GetApiID", {Button, Binding}},
    {"RibbonTab.GetRibbonPanels", {Button, Binding}},
    {"RibbonPanel.get_Name", {}},
    {"RibbonPanel.GetApiID", {Button, Binding}},
    {"RibbonPanel.GetRibbonRow", {Button, Binding}},
    {"RibbonRow.GetApiID", {Button, Binding}},
    {"RibbonRow.InsertRibbonCommandButton", {Button, Binding}},
    {"RibbonRow.GetRibbonRowItems", {}}, // the host removes what was left of the registrations
    {"RibbonRowItem.GetApiID", {}},
    {"RibbonRowItem.Remove", {}},
    {"CreateCustomPropertyControl2", QStringList{Command} + Panel},
    {"CustomPropertyControl.GetHWND", Panel},
    {"CustomPropertyControl.get_Visible", {Command}},
    {"CustomPropertyControl.put_Visible", {Command}},
    {"CustomPropertyControl.Destroy", {CleanEnd}},
    {"IsWebHelpEnabled", {WebHelp}},
    {"GetWebLink", {}},
    {"OpenWebHelp", {WebHelp}},
    {"GetSystemFiles", {HelpFile}},
    {"SystemFiles.get_HelpFile", {HelpFile}},
    {"OpenChmHelp", {HelpFile}},
    {"GetActiveDocument", {Prompt, Block}},
    {"GetCommandMessage", {Prompt, Block}},
    {"CommandMessage.PromptForBlockInsertion", {Prompt, Block}},
    {"Document.GetModel", {Block}},
    {"Model.GetSketchManager", {Block}},
    {"SketchManager.InsertBlock2", {Block}},
    {"RemoveUserInterface", {CleanEnd}},
};

} // namespace

Q_DECLARE_METATYPE(devhost::Outcome)
Q_DECLARE_METATYPE(pvResult)

/// A host in which one SDK call fails: the whole scenario from connect to disconnect, in which only what
/// needs that call is missing.
class FailingHostTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyCallIsInTheTable();
    void oneCallFails_data();
    void oneCallFails();
    void theHandleNamesNoWidget_data();
    void theHandleNamesNoWidget();

private:
    /// Plays the scenario. @return what of the effects was seen.
    QStringList effectsOfAScenario();
    void lookAtRegistrations();
    void askForHelp();
    void logIn();
    void placeABlock();
    bool toggles();
    void note(bool isSeen, const QString& effect);

    QStringList m_seen;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<test::LoadedAddIn> m_addIn;
    std::unique_ptr<devhost::PaneUser> m_user;
};

void FailingHostTest::init()
{
    m_seen.clear();
    m_folder = std::make_unique<QTemporaryDir>();
    QDir::setCurrent(m_folder->path());
    m_addIn = std::make_unique<test::LoadedAddIn>();
    m_user = std::make_unique<devhost::PaneUser>(m_addIn->view());
    m_addIn->openCatalog();
    m_addIn->view().acceptPromptsAt(10, 20);
    m_addIn->host().newDocument();
}

void FailingHostTest::cleanup()
{
    QCOMPARE(m_addIn->leave(), QStringList());
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList());
    m_addIn.reset();
    QDir::setCurrent(QDir::rootPath());
    m_folder.reset();
}

QStringList FailingHostTest::effectsOfAScenario()
{
    m_addIn->connect();
    note(toggles() && toggles(), Command);
    lookAtRegistrations();
    if (m_addIn->view().paneWidget() != nullptr)
        m_addIn->view().paneWidget()->show(); // by the user
    if (m_addIn->shown("QTabWidget") != nullptr) {
        askForHelp();
        logIn();
        placeABlock();
    }
    m_addIn->disconnect();
    note(m_addIn->registrations().isEmpty() && m_addIn->host().panes().empty(), CleanEnd);
    return m_seen;
}

bool FailingHostTest::toggles()
{
    const QPointer<QWidget> pane = m_addIn->view().paneWidget();
    const bool before = pane && pane->isVisible();
    return m_addIn->host().runCommand("3DPH") && pane && pane->isVisible() != before;
}

void FailingHostTest::note(bool isSeen, const QString& effect)
{
    if (isSeen)
        m_seen.append(effect);
}

void FailingHostTest::lookAtRegistrations()
{
    const auto userCommand = m_addIn->host().findUserCommand("UserCommand_3DPH");
    note(userCommand && userCommand->properties().largeIcon == ":/3DPH/Resource/3DPH_32x-32.svg", LightIcon);
    const QStringList entries = m_addIn->registrations().filter("ID_Import/3: 3DPH");
    const QStringList buttons = m_addIn->registrations().filter("ID_ImportTab/ID_ImportPanel: 3DPH");
    note(entries.size() == 1, MenuEntry);
    note(buttons.size() == 1, Button);
    note((entries + buttons).filter("UserCommand_3DPH").size() == 2, Binding);
}

void FailingHostTest::askForHelp()
{
    for (const bool web : {false, true}) {
        m_addIn->host().settings().webHelp = web;
        QTest::mouseClick(m_addIn->shown("HelpButton"), Qt::LeftButton);
    }
    const QStringList& opened = m_addIn->view().openedHelp();
    note(opened.contains("Help/PlotvaneKT.chm#15050"), HelpFile);
    note(!opened.filter("?P=16&L=").isEmpty(), WebHelp);
}

void FailingHostTest::logIn()
{
    // Both pages have their key: only then can the Panel search.
    QVERIFY(test::waitUntil([this] { return m_addIn->warnings().debugLines().size() == 4; }));
    m_user->logIn("a@b.example", "secret");
    QVERIFY(test::waitUntil([this] { return m_addIn->answerer().boxes().size() == 1; }));
    note(m_addIn->answerer().boxes().last().text == "Login is successful.", Login);
}

void FailingHostTest::placeABlock()
{
    m_user->openSearchTab();
    m_user->typeTerm("bolt");
    m_user->pressReturn();
    QVERIFY(test::waitUntil([this] { return !m_user->rows().isEmpty(); }));
    m_user->openPart(0);
    QVERIFY(test::waitUntil(
        [this] { return m_addIn->catalog().service().requests("GetConfigParams").size() == 1; }));
    m_user->clickPreview();
    // The last call of the scenario that the add-in makes in every host. The Prompt follows in the same turn.
    QVERIFY(
        test::waitUntil([this] { return m_addIn->host().journal().names().contains("GetCommandMessage"); }));
    note(!m_addIn->view().prompts().empty(), Prompt);
    note(m_addIn->host().activeDocument()->blocks().objects().size() == 1, Block);
}

void FailingHostTest::everyCallIsInTheTable()
{
    QCOMPARE(effectsOfAScenario(), All);
    QStringList called = m_addIn->host().journal().names();
    QStringList inTable;
    for (const Failure& failure : Failures)
        inTable.append(failure.call);
    called.sort();
    inTable.sort();
    QCOMPARE(called, inTable);
}

void FailingHostTest::oneCallFails_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<pvResult>("result");
    QTest::addColumn<Outcome>("outcome");
    QTest::addColumn<QStringList>("lost");
    for (const Failure& failure : Failures) {
        QTest::addRow("%s refuses", failure.call)
            << failure.call << PVRESULT_False << Outcome::Nothing << failure.lost;
        QTest::addRow("%s claims success and gives nothing", failure.call)
            << failure.call << PVRESULT_True << Outcome::Nothing << failure.lost;
        // Only for the pane does the result code count; its control is there All the same.
        const bool isPane = failure.call == QLatin1String("CreateCustomPropertyControl2");
        QTest::addRow("%s works and claims failure", failure.call)
            << failure.call << PVRESULT_False << Outcome::Usual << (isPane ? Panel : QStringList());
        if (isPane)
            QTest::addRow("%s works and claims neither", failure.call)
                << failure.call << static_cast<pvResult>(2) << Outcome::Usual << Panel;
    }
}

void FailingHostTest::oneCallFails()
{
    QFETCH(QString, call);
    QFETCH(pvResult, result);
    QFETCH(Outcome, outcome);
    QFETCH(QStringList, lost);
    m_addIn->host().answers().fail(call, result, outcome);
    QStringList expected = All;
    for (const QString& effect : lost)
        expected.removeAll(effect);
    QCOMPARE(effectsOfAScenario(), expected);
}

void FailingHostTest::theHandleNamesNoWidget_data()
{
    QTest::addColumn<quintptr>("handle");
    for (const quintptr handle : {quintptr{0}, quintptr{0x7ffffff0}, quintptr{0x80000001}})
        QTest::addRow("%lx", static_cast<unsigned long>(handle)) << handle;
}

void FailingHostTest::theHandleNamesNoWidget()
{
    QFETCH(quintptr, handle);
    m_addIn->view().reportHandle(handle);
    QVERIFY(m_addIn->connect());
    QVERIFY(!m_addIn->host().panes().empty());
    QCOMPARE(m_addIn->view().paneWidget()->children(), QObjectList());
    QVERIFY(toggles());
    QVERIFY(toggles());
}

QTEST_MAIN(FailingHostTest)
#include "FailingHostTest.moc"
