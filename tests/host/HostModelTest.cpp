#include "dev/host/model/HostApplication.h"
#include "tests/host/ScriptedHostView.h"
#include "tests/support/FatalWarnings.h"

#include <pvInterface/pvInterfacePtr.h>

#include <QTest>

using devhost::BlockPrompt;
using devhost::BlockPromptAnswer;
using devhost::HostApplication;

/// What the tests of the add-in rely on in their host without looking at it.
class HostModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void referencesAreCounted();
    void promptsHandOverAnswersOneAtATime();
    void blocksArePlaced();

private:
    /// Prompts for a block. @return the result; into @p out what was answered.
    int prompt(const wchar_t* file, double (&out)[7]);

    std::unique_ptr<test::FatalWarnings> m_warnings;
    std::unique_ptr<test::ScriptedHostView> m_view;
    std::shared_ptr<HostApplication> m_host;
};

void HostModelTest::init()
{
    m_warnings = std::make_unique<test::FatalWarnings>();
    m_view = std::make_unique<test::ScriptedHostView>();
    m_host = std::make_shared<HostApplication>(*m_view);
}

void HostModelTest::cleanup()
{
    m_host.reset();
    m_view.reset();
    m_warnings.reset();
}

int HostModelTest::prompt(const wchar_t* file, double (&out)[7])
{
    pvCommandMessage_c* message = nullptr;
    m_host->GetCommandMessage(&message);
    pvPromptResultType_e result{};
    message->PromptForBlockInsertion(file, true, 1.0, 2.0, 3.0, true, 0.5, &out[0], &out[1], &out[2], &out[3],
                                     &out[4], &out[5], &out[6], &result);
    return int(result);
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

void HostModelTest::promptsHandOverAnswersOneAtATime()
{
    int inner = -1;
    m_view->answerPrompts([&](const BlockPrompt&) {
        double ignored[7] = {};
        inner = prompt(L"b.dwg", ignored);
        return BlockPromptAnswer{BlockPromptAnswer::Accepted, {1, 2, 3, 4, 5, 6, 7}};
    });
    double out[7] = {};
    QCOMPARE(prompt(L"a.dwg", out), int(BlockPromptAnswer::Accepted));
    for (int i = 0; i < 7; ++i)
        QCOMPARE(out[i], i + 1.0);
    QCOMPARE(inner, int(BlockPromptAnswer::Cancelled));

    QCOMPARE(m_view->prompts().size(), std::size_t(1));
    const BlockPrompt& asked = m_view->prompts().back();
    QCOMPARE(asked.file, QString("a.dwg"));
    QCOMPARE(asked.preset.scaleZ, 3.0);
    QCOMPARE(asked.preset.rotation, 0.5);
}

void HostModelTest::blocksArePlaced()
{
    m_host->newDocument();
    pvDocument_c* document = nullptr;
    m_host->GetActiveDocument(&document);
    pvModel_c* model = nullptr;
    document->GetModel(&model);
    pvSketchManager_c* manager = nullptr;
    model->GetSketchManager(&manager);
    const pvString file(QCoreApplication::applicationFilePath().toStdWString().c_str());
    pvBlockInstance_c* block = nullptr;
    QCOMPARE(manager->InsertBlock2(file, 1, 2, 0, 1, 1, 1, 0.5, &block), PVRESULT_True);
    QVERIFY(block != nullptr);
    QCOMPARE(manager->InsertBlock2(L"missing.dwg", 1, 2, 0, 1, 1, 1, 0, &block), PVRESULT_False);
    QVERIFY(block == nullptr);
    QCOMPARE(manager->InsertBlock2(file, 1, 2, 0, 1, 0, 1, 0, &block), PVRESULT_False);
    QCOMPARE(manager->InsertBlock2(file, qQNaN(), 2, 0, 1, 1, 1, 0, &block), PVRESULT_False);

    const auto blocks = m_host->activeDocument()->blocks().objects();
    QCOMPARE(blocks.size(), std::size_t(1));
    QCOMPARE(blocks.front()->name(), QString("HostModelTest"));
    QCOMPARE(blocks.front()->placement().rotation, 0.5);
}

QTEST_MAIN(HostModelTest)
#include "HostModelTest.moc"
