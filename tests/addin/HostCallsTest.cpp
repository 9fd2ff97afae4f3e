#include "tests/addin/HostLanguages.h"
#include "tests/addin/LoadedAddIn.h"

#include <QTest>

#include <functional>

using devhost::HostApplication;

namespace
{

// clang-format off
const QStringList ConnectCalls{
    R"(GetLanguage())",
    R"(CreateCommand("5B1C0F4E-27D3-4A96-8E21-0C7DA4E39F52", "3DPH"))",
    R"(Command[3DPH].RegisterEvent(1, pointer, pointer))",
    R"(GetApplicationOptions())",
    R"(ApplicationOptions.GetApplicationOptionInt16(48))",
    R"(CreateUserCommand("5B1C0F4E-27D3-4A96-8E21-0C7DA4E39F52", "3DPH", "^C^C3DPH", "3DPH : 3DPH", ":/3DPH/Resource/3DPH_32x-32.svg", ":/3DPH/Resource/3DPH_32x-32.svg", 2))",
    R"(UserCommand[UserCommand_3DPH].GetID())",
    R"(GetMenuItems(2))",
    R"(MenuItem[ID_File].GetID())",
    R"(MenuItem[ID_Import].GetID())",
    R"(MenuItem[ID_Import].InsertMenuItem("5B1C0F4E-27D3-4A96-8E21-0C7DA4E39F52", 2, 3, "3DPH", "UserCommand_3DPH"))",
    R"(GetWorkspace("Drafting and Annotation"))",
    R"(Workspace[Drafting and Annotation].GetRibbonTabs())",
    R"(RibbonTab[ID_HomeTab].get_Name())",
    R"(RibbonTab[ID_HomeTab].GetApiID())",
    R"(RibbonTab[ID_ImportTab].get_Name())",
    R"(RibbonTab[ID_ImportTab].GetApiID())",
    R"(RibbonTab[ID_ImportTab].GetRibbonPanels())",
    R"(RibbonPanel[ID_FirstPanel].get_Name())",
    R"(RibbonPanel[ID_FirstPanel].GetApiID())",
    R"(RibbonPanel[ID_ImportPanel].get_Name())",
    R"(RibbonPanel[ID_ImportPanel].GetApiID())",
    R"(RibbonPanel[ID_ImportPanel].GetRibbonRow())",
    R"(RibbonRow[ID_ImportPANELROW].GetApiID())",
    R"(RibbonRow[ID_ImportPANELROW].InsertRibbonCommandButton("5B1C0F4E-27D3-4A96-8E21-0C7DA4E39F52", 1, "3DPH", "UserCommand_3DPH"))",
    R"(RibbonPanel[ID_LastPanel].get_Name())",
    R"(RibbonPanel[ID_LastPanel].GetApiID())",
    R"(RibbonTab[ID_ViewTab].get_Name())",
    R"(RibbonTab[ID_ViewTab].GetApiID())",
    R"(CreateCustomPropertyControl2("3D PARTHARBOR", 2, 3))",
    R"(CustomPropertyControl.GetHWND())",
    R"(CustomPropertyControl.put_Visible(true))",
};
const QStringList DisconnectCalls{
    R"(GetWorkspace("Drafting and Annotation"))",
    R"(Workspace[Drafting and Annotation].GetRibbonTabs())",
    R"(RibbonTab[ID_HomeTab].GetApiID())",
    R"(RibbonTab[ID_ImportTab].GetApiID())",
    R"(RibbonTab[ID_ImportTab].GetRibbonPanels())",
    R"(RibbonPanel[ID_FirstPanel].GetApiID())",
    R"(RibbonPanel[ID_ImportPanel].GetApiID())",
    R"(RibbonPanel[ID_ImportPanel].GetRibbonRow())",
    R"(RibbonRow[ID_ImportPANELROW].GetApiID())",
    R"(RibbonRow[ID_ImportPANELROW].GetRibbonRowItems())",
    R"(RibbonRowItem[ID_IMPORT].GetApiID())",
    R"(RibbonRowItem[OTHER-ADD-IN].GetApiID())",
    R"(RibbonRowItem[5B1C0F4E-27D3-4A96-8E21-0C7DA4E39F52].GetApiID())",
    R"(RibbonRowItem[5B1C0F4E-27D3-4A96-8E21-0C7DA4E39F52].Remove())",
    R"(RibbonPanel[ID_LastPanel].GetApiID())",
    R"(RibbonTab[ID_ViewTab].GetApiID())",
    R"(RemoveUserInterface("5B1C0F4E-27D3-4A96-8E21-0C7DA4E39F52"))",
    R"(CustomPropertyControl.Destroy())",
};
// clang-format on

const QStringList Hide{"CustomPropertyControl.get_Visible()", "CustomPropertyControl.put_Visible(false)"};
const QStringList Show{"CustomPropertyControl.get_Visible()", "CustomPropertyControl.put_Visible(true)"};

} // namespace

/// What the add-in calls in its host, whole and in order, and what stands in the host afterwards.
class HostCallsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_addIn = std::make_unique<test::LoadedAddIn>(); }
    void cleanup();

    void aConnectionFromStartToEnd();
    void aSecondConnectIsRefused();
    void help_data();
    void help();
    void registration_data();
    void registration();

private:
    std::unique_ptr<test::LoadedAddIn> m_addIn;
};

void HostCallsTest::cleanup()
{
    QCOMPARE(m_addIn->leave(), QStringList());
    m_addIn.reset();
}

void HostCallsTest::aConnectionFromStartToEnd()
{
    HostApplication& host = m_addIn->host();
    QCOMPARE(m_addIn->library().identifier(), test::AddInIdentifier);
    QVERIFY(m_addIn->disconnect());
    QCOMPARE(m_addIn->takeCalls(), QStringList());

    for (int round = 1; round <= 2; ++round) {
        QVERIFY(m_addIn->connect());
        QCOMPARE(m_addIn->takeCalls(), ConnectCalls);
        QVERIFY(host.runCommand("3DPH"));
        QCOMPARE(m_addIn->takeCalls(), Hide);
        QVERIFY(host.runCommand("3DPH"));
        QCOMPARE(m_addIn->takeCalls(), Show);
        m_addIn->view().paneWidget()->hide(); // by the user: what the host says decides
        QVERIFY(host.runUserCommand("UserCommand_3DPH"));
        QCOMPARE(m_addIn->takeCalls(), Show);
        QCOMPARE(m_addIn->library().identifier(), test::AddInIdentifier);

        QVERIFY(m_addIn->disconnect());
        QCOMPARE(m_addIn->takeCalls(), DisconnectCalls);
        QCOMPARE(m_addIn->registrations(), QStringList());
        QVERIFY(m_addIn->view().paneWidget() == nullptr);
        QVERIFY(m_addIn->disconnect());
        QCOMPARE(m_addIn->takeCalls(), QStringList());
    }
}

void HostCallsTest::aSecondConnectIsRefused()
{
    QVERIFY(m_addIn->connect());
    m_addIn->takeCalls();
    const QStringList registrations = m_addIn->registrations();
    const QPointer<QWidget> pane = m_addIn->view().paneWidget();

    test::ScriptedHostView otherView;
    const auto other = std::make_shared<HostApplication>(otherView);
    QVERIFY(!m_addIn->library().connect(other.get()));
    QCOMPARE(other->journal().lines(), QStringList());
    QCOMPARE(m_addIn->takeCalls(), QStringList());
    QCOMPARE(m_addIn->registrations(), registrations);
    QVERIFY(!pane.isNull());

    QVERIFY(m_addIn->disconnect()); // from the first
    QCOMPARE(m_addIn->takeCalls(), DisconnectCalls);
    QVERIFY(m_addIn->library().connect(other.get()));
    QVERIFY(other->journal().lines().size() > 1);
    QVERIFY(m_addIn->disconnect());
    QCOMPARE(m_addIn->takeCalls(), QStringList());
}

void HostCallsTest::help_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("webLink"); // null for compiled help
    QTest::addColumn<QString>("helpFile");
    QTest::addColumn<QString>("opened");

    const QString link = "https://help.example/plotvane?x=1";
    for (const test::HostLanguage& language : test::hostLanguages())
        QTest::addRow("web, language %d", language.value)
            << language.value << link << QString()
            << link + "?P=16&L=" + language.help + "&V=2019&C=PlotvaneKT&I=0";
    QTest::addRow("web, base with blanks and umlauts")
        << 2 << QString::fromUtf8("C:\\a b\\ü") << QString()
        << QString::fromUtf8("C:\\a b\\ü?P=16&L=English&V=2019&C=PlotvaneKT&I=0");

    const auto file = [](const char* name, const char* given, const char* opened) {
        QTest::addRow("file, %s", name) << 1 << QString() << QString(given) << QString(opened);
    };
    file("usual", "C:/Help/Plotvane.chm", "C:/Help/PlotvaneKT.chm");
    file("in a folder of that name", "Plotvane.chm/Plotvane.chm", "PlotvaneKT.chm/PlotvaneKT.chm");
    file("other letter case", "C:/Help/plotvane.chm", "C:/Help/plotvane.chm");
    file("other name", "C:/Help/other.chm", "C:/Help/other.chm");
    file("none", "", "");
}

void HostCallsTest::help()
{
    QFETCH(int, language);
    QFETCH(QString, webLink);
    QFETCH(QString, helpFile);
    QFETCH(QString, opened);
    devhost::HostSettings& settings = m_addIn->host().settings();
    settings.language = language;
    settings.webHelp = !webLink.isNull();
    settings.webLink = webLink;
    settings.helpFile = helpFile;
    m_addIn->connect();
    m_addIn->takeCalls();

    QTest::mouseClick(m_addIn->shown("HelpButton"), Qt::LeftButton);
    const QStringList calls =
        settings.webHelp ? QStringList{"IsWebHelpEnabled()", "GetWebLink()", "GetLanguage()",
                                       "OpenWebHelp(\"" + opened + "\")"}
                         : QStringList{"IsWebHelpEnabled()", "GetSystemFiles()", "SystemFiles.get_HelpFile()",
                                       "OpenChmHelp(15050, \"" + opened + "\")"};
    QCOMPARE(m_addIn->takeCalls(), calls);
}

using Arrangement = std::function<void(HostApplication&)>;
Q_DECLARE_METATYPE(Arrangement)

void HostCallsTest::registration_data()
{
    QTest::addColumn<Arrangement>("arrange");
    QTest::addColumn<QStringList>("registered");

    const QStringList commands{"command 3DPH", "user command UserCommand_3DPH"};
    const QStringList entry{"ID_Import/3: 3DPH UserCommand_3DPH"};
    const QStringList button{"ID_ImportTab/ID_ImportPanel: 3DPH UserCommand_3DPH"};
    const auto tab = [](HostApplication& host) {
        return host.workspaces().objects().front()->tabs().objects().at(1);
    };
    const auto row = [](const char* name, const QStringList& registered, const Arrangement& arrange) {
        QTest::newRow(name) << arrange << registered;
    };

    row("name taken", {}, [](HostApplication& host) { host.addCommand("3DPH"); });
    row("negative creation error", {},
        [](HostApplication& host) { host.refuseCommands(pvCreateCommandError_e(-1)); });
    row("pane not shown by the host", commands + entry + button, [](HostApplication& host) {
        host.answers().fail("CustomPropertyControl.put_Visible", PVRESULT_False);
    });
    row("two import menus", commands + entry + button,
        [](HostApplication& host) { host.addMenu("ID_Import", "Second"); });
    const QStringList inOther{"id_import/0: 3DPH UserCommand_3DPH"};
    row("no import menu", commands + inOther + button, [](HostApplication& host) {
        host.menus() = {};
        host.addMenu("ID_File", "File");
        host.addMenu("id_import", "Other letter case");
    });
    const QStringList inFile{"ID_File/0: 3DPH UserCommand_3DPH"};
    row("no import menu, null entry last", commands + inFile + button, [](HostApplication& host) {
        host.menus() = {};
        host.addMenu("ID_File", "File");
        host.menus().addNull();
    });
    row("null menus alone", commands + button, [](HostApplication& host) {
        host.menus() = {};
        host.menus().addNull();
    });
    row("gaps and strangers in every list", commands + entry + button, [=](HostApplication& host) {
        host.addCommand("OTHER");
        const auto stranger = host.commands().objects().back();
        const auto fill = [&](auto& list) {
            const auto objects = list.objects();
            list = {};
            for (const auto& object : objects) {
                list.addNull();
                list.addStranger(stranger);
                list.add(object);
            }
            list.addNull();
        };
        fill(host.menus());
        fill(tab(host)->panels().objects().at(1)->row()->buttons());
        fill(tab(host)->panels());
        fill(host.workspaces().objects().front()->tabs());
    });
    const QStringList matching = commands + entry + button + button + button;
    row("several tabs, panels and rows that match", matching, [=](HostApplication& host) {
        tab(host)->addPanel("ID_ImportPanel", "Second", "ID_ImportPANELROW");
        devhost::HostRibbonTab& second =
            host.workspaces().objects().front()->addTab("ID_ImportTab", "Second");
        second.addPanel("ID_ImportPanel", "Third", "ID_ImportPANELROW");
        second.addPanel("ID_ImportPanel", "Of another row", "ID_OtherPANELROW");
        second.addPanel("ID_ImportPanel", "Without a row", QString());
    });
}

void HostCallsTest::registration()
{
    QFETCH(Arrangement, arrange);
    arrange(m_addIn->host());
    QVERIFY(m_addIn->connect());
    QTEST(m_addIn->registrations(), "registered");
    QVERIFY(m_addIn->view().paneWidget()->isVisible());

    // What the ribbon loses is the add-in's own doing; the host drops the rest.
    m_addIn->host().answers().fail("RemoveUserInterface", PVRESULT_False);
    QVERIFY(m_addIn->disconnect());
    QCOMPARE(m_addIn->registrations().filter("Panel"), QStringList());
}

QTEST_MAIN(HostCallsTest)
#include "HostCallsTest.moc"
