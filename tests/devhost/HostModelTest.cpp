#include "devhost/model/DraftingInterface.h"
#include "devhost/model/HostApplication.h"
#include "devhost/model/HostText.h"
#include "tests/devhost/ScriptedHostView.h"
#include "tests/support/FatalWarnings.h"

#include <pvInterface/pvInterfacePtr.h>

#include <QTemporaryFile>
#include <QtTest>

Q_DECLARE_METATYPE(pvResult)
Q_DECLARE_METATYPE(devhost::Outcome)

using devhost::HostApplication;
using devhost::Outcome;
using devhost::toQString;

namespace
{

const pvString appID(L"APP");

/// What an add-in holds after it registered a command with menu entry and button.
struct Registration {
    pvCreateCommandError_e error = pvCreateCommand_Succeeded;
    pvCommand_c* command = nullptr;
    pvUserCommand_c* userCommand = nullptr;
    pvString userCommandID;
};

Registration registerCommand(HostApplication& host, const wchar_t* name)
{
    Registration made;
    host.CreateCommand(appID, name, &made.error, &made.command);
    host.CreateUserCommand(appID, name, L"^C^CPARTS", L"Parts", L":/icon.svg", L":/icon.svg", pvUIState_e(2),
                           &made.error, &made.userCommand);
    if (made.userCommand != nullptr)
        made.userCommand->GetID(&made.userCommandID);
    return made;
}

template <class Item>
Item* itemOfID(const pvObjectPtrArray& items, const QString& id)
{
    for (int i = 0; i < items.getSize(); ++i) {
        auto* item = dynamic_cast<Item*>(items[i]);
        pvString itemID;
        if (item != nullptr && item->GetApiID(&itemID) == PVRESULT_True && toQString(itemID) == id)
            return item;
    }
    return nullptr;
}

pvRibbonRow_c* importRow(HostApplication& host)
{
    pvWorkspace_c* workspace = nullptr;
    host.GetWorkspace(L"Drafting and Annotation", &workspace);
    pvObjectPtrArray tabs;
    workspace->GetRibbonTabs(&tabs);
    pvObjectPtrArray panels;
    itemOfID<pvRibbonTab_c>(tabs, "ID_ImportTab")->GetRibbonPanels(&panels);
    pvRibbonRow_c* row = nullptr;
    itemOfID<pvRibbonPanel_c>(panels, "ID_ImportPanel")->GetRibbonRow(&row);
    return row;
}

bool countRun(void* context)
{
    ++*static_cast<int*>(context);
    return true;
}

} // namespace

class HostModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void journalShowsEachCallWithItsArguments();
    void registeredCommandRunsByNameAndByUserCommand();
    void takenOrRefusedCommandNames();
    void removeUserInterfaceDropsWhatTheAddInRegistered();
    void ribbonButtonsRemoveThemselvesFromASnapshot();
    void arraysCanHaveGapsAndStrangers();
    void arrangedAnswers_data();
    void arrangedAnswers();
    void referencesAreCounted();
    void paneIsDestroyedWithItsWidgets();
    void handleComesInTheLow32Bits();
    void promptAnswersAreHandedOver();
    void secondPromptIsRefused();
    void blocksGoIntoTheActiveDocument();

private:
    std::unique_ptr<test::FatalWarnings> m_warnings;
    std::unique_ptr<test::ScriptedHostView> m_view;
    std::shared_ptr<HostApplication> m_host;
};

void HostModelTest::init()
{
    m_warnings = std::make_unique<test::FatalWarnings>();
    m_view = std::make_unique<test::ScriptedHostView>();
    m_host = std::make_shared<HostApplication>(*m_view);
    devhost::addDraftingInterface(*m_host);
}

void HostModelTest::cleanup()
{
    m_host.reset();
    m_view.reset();
    m_warnings.reset();
}

void HostModelTest::journalShowsEachCallWithItsArguments()
{
    QSignalSpy added(&m_host->journal(), &devhost::Journal::added);
    const Registration made = registerCommand(*m_host, L"PARTS");
    made.command->RegisterEvent(pvCommandEvent_id_e(1), &m_host, reinterpret_cast<void*>(&countRun));
    pvMenuItem_c* entry = nullptr;
    m_host->menus().objects().front()->InsertMenuItem(appID, pvMenuItemType_e(2), 3, L"Parts",
                                                      made.userCommandID, &entry);
    pvCommandMessage_c* message = nullptr;
    m_host->GetCommandMessage(&message);
    double number = 0.0;
    pvPromptResultType_e result{};
    message->PromptForBlockInsertion(L"a.dwg", true, 1.0, 0.5, 1.0 / 3.0, false, 0.0, &number, &number,
                                     &number, &number, &number, &number, &number, &result);

    const QStringList expected{
        R"(CreateCommand("APP", "PARTS"))",
        R"(CreateUserCommand("APP", "PARTS", "^C^CPARTS", "Parts", ":/icon.svg", ":/icon.svg", 2))",
        R"(UserCommand[UserCommand_PARTS].GetID())",
        R"(Command[PARTS].RegisterEvent(1, pointer, pointer))",
        R"(MenuItem[ID_File].InsertMenuItem("APP", 2, 3, "Parts", "UserCommand_PARTS"))",
        R"(GetCommandMessage())",
        R"(CommandMessage.PromptForBlockInsertion("a.dwg", true, 1, 0.5, 0.3333333333333333, false, 0))",
    };
    QCOMPARE(m_host->journal().lines(), expected);
    QCOMPARE(added.count(), expected.size());
    QCOMPARE(m_host->journal().names().at(4), QString("MenuItem.InsertMenuItem"));
}

void HostModelTest::registeredCommandRunsByNameAndByUserCommand()
{
    const Registration made = registerCommand(*m_host, L"PARTS");
    int runs = 0;
    made.command->RegisterEvent(pvCommandEvent_id_e(1), &runs, reinterpret_cast<void*>(&countRun));

    QVERIFY(m_host->runCommand("parts"));
    QCOMPARE(runs, 1);
    QVERIFY(m_host->runUserCommand(toQString(made.userCommandID)));
    QCOMPARE(runs, 2);
    QCOMPARE(m_view->cancelledPrompts(), 2); // One for each ^C.
    QVERIFY(!m_host->runCommand("PART"));
    QVERIFY(!m_host->runUserCommand("PARTS"));
}

void HostModelTest::takenOrRefusedCommandNames()
{
    m_host->addCommand("PARTS");
    Registration made = registerCommand(*m_host, L"Parts");
    QVERIFY(made.command == nullptr);

    pvCreateCommandError_e error = pvCreateCommand_Succeeded;
    QCOMPARE(m_host->CreateCommand(appID, L"Parts", &error, &made.command), PVRESULT_False);
    QCOMPARE(error, pvCreateCommand_CommandNameExisted);

    m_host->refuseCommands(pvCreateCommandError_e(7));
    m_host->CreateCommand(appID, L"OTHER", &error, &made.command);
    QCOMPARE(int(error), 7);
    QVERIFY(made.command == nullptr);
    QVERIFY(!m_host->runCommand("OTHER"));
}

void HostModelTest::removeUserInterfaceDropsWhatTheAddInRegistered()
{
    const auto menu = m_host->menus().objects().front();
    const auto entriesBefore = menu->entries().objects();
    pvRibbonRow_c* row = importRow(*m_host);
    pvObjectPtrArray itemsBefore;
    row->GetRibbonRowItems(&itemsBefore);

    const Registration made = registerCommand(*m_host, L"PARTS");
    m_host->CreateCommand(L"OTHER", L"OTHER", nullptr, nullptr);
    menu->InsertMenuItem(appID, pvMenuItemType_e(2), 3, L"Parts", made.userCommandID, nullptr);
    row->InsertRibbonCommandButton(appID, pvRibbonButtonStyle_e(1), L"Parts", made.userCommandID, nullptr);
    QCOMPARE(menu->entries().objects().at(3)->properties().caption, QString("Parts"));

    QCOMPARE(m_host->RemoveUserInterface(L""), PVRESULT_False);
    QCOMPARE(menu->entries().objects().size(), entriesBefore.size() + 1);
    QCOMPARE(m_host->RemoveUserInterface(appID), PVRESULT_True);
    QVERIFY(menu->entries().objects() == entriesBefore);
    pvObjectPtrArray itemsAfter;
    row->GetRibbonRowItems(&itemsAfter);
    QCOMPARE(itemsAfter.getSize(), itemsBefore.getSize());
    QVERIFY(!m_host->runCommand("PARTS"));
    QVERIFY(!m_host->findUserCommand("UserCommand_PARTS"));
    QVERIFY(m_host->runCommand("OTHER"));
}

void HostModelTest::ribbonButtonsRemoveThemselvesFromASnapshot()
{
    pvRibbonRow_c* row = importRow(*m_host);
    pvObjectPtrArray before;
    row->GetRibbonRowItems(&before);
    for (int i = 0; i < 2; ++i)
        row->InsertRibbonCommandButton(appID, pvRibbonButtonStyle_e(1), L"Parts", L"U", nullptr);

    pvObjectPtrArray items;
    row->GetRibbonRowItems(&items);
    QCOMPARE(items.getSize(), before.getSize() + 2);
    for (int i = before.getSize(); i < items.getSize(); ++i)
        QCOMPARE(dynamic_cast<pvRibbonRowItem_c*>(items[i])->Remove(), PVRESULT_True);
    pvObjectPtrArray after;
    row->GetRibbonRowItems(&after);
    QCOMPARE(after.getSize(), before.getSize());
}

void HostModelTest::arraysCanHaveGapsAndStrangers()
{
    const int menus = static_cast<int>(m_host->menus().objects().size());
    m_host->menus().addNull();
    m_host->menus().addStranger(m_host->workspaces().objects().front());
    m_host->addMenu("ID_Last", "Last");

    pvObjectPtrArray array;
    m_host->GetMenuItems(pvUIState_e(2), &array);
    QCOMPARE(array.getSize(), menus + 3);
    QVERIFY(array[menus] == nullptr);
    QVERIFY(dynamic_cast<pvMenuItem_c*>(array[menus + 1]) == nullptr);
    QVERIFY(dynamic_cast<pvMenuItem_c*>(array[menus + 2]) != nullptr);
    QCOMPARE(m_host->menus().objects().size(), std::size_t(menus + 1));

    pvObjectPtrArray otherState;
    m_host->GetMenuItems(pvUIState_e(1), &otherState);
    QCOMPARE(otherState.getSize(), 0);
}

void HostModelTest::arrangedAnswers_data()
{
    QTest::addColumn<pvResult>("result");
    QTest::addColumn<Outcome>("outcome");
    QTest::newRow("false, with object") << PVRESULT_False << Outcome::Usual;
    QTest::newRow("false, null") << PVRESULT_False << Outcome::Nothing;
    QTest::newRow("true, null") << PVRESULT_True << Outcome::Nothing;
}

void HostModelTest::arrangedAnswers()
{
    QFETCH(const pvResult, result);
    QFETCH(const Outcome, outcome);
    const bool usual = outcome == Outcome::Usual;
    for (const char* call :
         {"GetWorkspace", "CreateCommand", "GetMenuItems", "GetLanguage", "MenuItem.GetID"})
        m_host->answers().fail(call, result, outcome);

    pvWorkspace_c* workspace = nullptr;
    QCOMPARE(m_host->GetWorkspace(L"Drafting and Annotation", &workspace), result);
    QCOMPARE(workspace != nullptr, usual);

    pvCommand_c* command = nullptr;
    QCOMPARE(m_host->CreateCommand(appID, L"PARTS", nullptr, &command), result);
    QCOMPARE(command != nullptr, usual);
    QCOMPARE(m_host->runCommand("PARTS"), usual);

    pvObjectPtrArray menus;
    QCOMPARE(m_host->GetMenuItems(pvUIState_e(2), &menus), result);
    QCOMPARE(menus.getSize() > 0, usual);

    pvLanguage_e language{99};
    QCOMPARE(m_host->GetLanguage(&language), result);
    QCOMPARE(int(language), usual ? 2 : 99);

    pvString id(L"untouched");
    QCOMPARE(m_host->menus().objects().front()->GetID(&id), result);
    QCOMPARE(toQString(id), QString(usual ? "ID_File" : "untouched"));

    m_host->answers().clear();
    QCOMPARE(m_host->GetWorkspace(L"Drafting and Annotation", &workspace), PVRESULT_True);
    QVERIFY(workspace != nullptr);
}

void HostModelTest::referencesAreCounted()
{
    pvCustomPropertyControl_c* control = nullptr;
    m_host->CreateCustomPropertyControl2(L"Pane", {}, 3, &control);
    {
        const pvInterfacePtr<pvApplication_c> application(m_host.get());
        const pvInterfacePtr<pvCustomPropertyControl_c> first(control);
        pvInterfacePtr<pvCustomPropertyControl_c> second;
        second = first;
        QCOMPARE(second.get(), control);
        QCOMPARE(m_host->references().outstanding(), 3);

        // What the host dropped stays usable while it is referenced.
        control->Destroy();
        m_host->CreateCustomPropertyControl2(L"Another", {}, 3, &control);
        bool visible = true;
        QCOMPARE(first->get_Visible(&visible), PVRESULT_True);
        QVERIFY(!visible);
    }
    QCOMPARE(m_host->references().outstanding(), 0);
    QVERIFY(m_host->references().errors().isEmpty());

    control->Release();
    QCOMPARE(m_host->references().errors(), QStringList{"CustomPropertyControl"});
}

void HostModelTest::paneIsDestroyedWithItsWidgets()
{
    pvCustomPropertyControl_c* control = nullptr;
    QCOMPARE(m_host->CreateCustomPropertyControl2(L"Pane", {}, 3, &control), PVRESULT_True);
    QPointer<QWidget> child = new QWidget(m_view->paneWidget());
    QCOMPARE(m_host->panes().size(), std::size_t(1));

    control->put_Visible(true);
    bool visible = false;
    control->get_Visible(&visible);
    QVERIFY(visible);
    control->Destroy();
    QVERIFY(child.isNull());
    QVERIFY(m_host->panes().empty());
    QCOMPARE(control->put_Visible(true), PVRESULT_False);

    m_view->refusePanes();
    QCOMPARE(m_host->CreateCustomPropertyControl2(L"Pane", {}, 3, &control), PVRESULT_False);
    QVERIFY(control == nullptr);
}

void HostModelTest::handleComesInTheLow32Bits()
{
    m_view->reportHandle(0x80000001);
    pvCustomPropertyControl_c* control = nullptr;
    m_host->CreateCustomPropertyControl2(L"Pane", {}, 3, &control);
    long handle = 0;
    QCOMPARE(control->GetHWND(&handle), PVRESULT_True);
    QCOMPARE(handle, static_cast<long>(0x80000001)); // Not sign-extended: that is the caller's part.
}

void HostModelTest::promptAnswersAreHandedOver()
{
    m_view->answerPrompts([](const devhost::BlockPrompt&) {
        return devhost::BlockPromptAnswer{devhost::BlockPromptAnswer::Accepted, {1, 2, 3, 4, 5, 6, 7}};
    });
    pvCommandMessage_c* message = nullptr;
    m_host->GetCommandMessage(&message);
    double out[7] = {};
    pvPromptResultType_e result{};
    message->PromptForBlockInsertion(L"a.dwg", true, 1.0, 2.0, 3.0, true, 0.5, &out[0], &out[1], &out[2],
                                     &out[3], &out[4], &out[5], &out[6], &result);
    QCOMPARE(int(result), 1);
    for (int i = 0; i < 7; ++i)
        QCOMPARE(out[i], i + 1.0);

    const devhost::BlockPrompt& prompt = m_view->prompts().back();
    QCOMPARE(prompt.file, QString("a.dwg"));
    QVERIFY(prompt.askScale && prompt.askRotation);
    QCOMPARE(prompt.preset.scaleZ, 3.0);
    QCOMPARE(prompt.preset.rotation, 0.5);
}

void HostModelTest::secondPromptIsRefused()
{
    pvCommandMessage_c* message = nullptr;
    m_host->GetCommandMessage(&message);
    pvPromptResultType_e inner{};
    m_view->answerPrompts([&](const devhost::BlockPrompt& prompt) {
        double ignored = 0.0;
        message->PromptForBlockInsertion(L"b.dwg", true, 1.0, 1.0, 1.0, true, 0.0, &ignored, &ignored,
                                         &ignored, &ignored, &ignored, &ignored, &ignored, &inner);
        return devhost::BlockPromptAnswer{devhost::BlockPromptAnswer::Accepted, prompt.preset};
    });
    double out = 0.0;
    pvPromptResultType_e outer{};
    message->PromptForBlockInsertion(L"a.dwg", true, 1.0, 1.0, 1.0, true, 0.0, &out, &out, &out, &out, &out,
                                     &out, &out, &outer);
    QCOMPARE(int(outer), int(devhost::BlockPromptAnswer::Accepted));
    QCOMPARE(int(inner), int(devhost::BlockPromptAnswer::Cancelled));
    QCOMPARE(m_view->prompts().size(), std::size_t(1));
}

void HostModelTest::blocksGoIntoTheActiveDocument()
{
    pvDocument_c* document = nullptr;
    QCOMPARE(m_host->GetActiveDocument(&document), PVRESULT_False);
    QVERIFY(document == nullptr);

    m_host->newDocument();
    const auto& second = m_host->newDocument();
    m_view->setBlock("gear0.dwg", devhost::BlockGeometry{{devhost::BlockPath{{{0, 0}, {1, 1}}}}});
    m_host->GetActiveDocument(&document);
    pvModel_c* model = nullptr;
    document->GetModel(&model);
    pvSketchManager_c* manager = nullptr;
    model->GetSketchManager(&manager);
    pvBlockInstance_c* block = nullptr;
    QCOMPARE(manager->InsertBlock2(L"gear0.dwg", 1, 2, 0, 1, 1, 1, 0.5, &block), PVRESULT_True);
    QVERIFY(block != nullptr);
    QCOMPARE(manager->InsertBlock2(L"missing.dwg", 1, 2, 0, 1, 1, 1, 0, &block), PVRESULT_False);
    QVERIFY(block == nullptr);
    QCOMPARE(manager->InsertBlock2(L"gear0.dwg", 1, 2, 0, 1, 0, 1, 0, &block), PVRESULT_False);
    QCOMPARE(manager->InsertBlock2(L"gear0.dwg", qQNaN(), 2, 0, 1, 1, 1, 0, &block), PVRESULT_False);

    const auto blocks = second.blocks().objects();
    QCOMPARE(blocks.size(), std::size_t(1));
    QCOMPARE(blocks.front()->name(), QString("gear0"));
    QCOMPARE(blocks.front()->placement().rotation, 0.5);
    QCOMPARE(blocks.front()->geometry().paths.size(), 1);

    m_host->closeActiveDocument();
    QVERIFY(m_host->activeDocument()->blocks().objects().empty());
    m_host->closeActiveDocument();
    QVERIFY(!m_host->activeDocument());
}

QTEST_MAIN(HostModelTest)
#include "HostModelTest.moc"
