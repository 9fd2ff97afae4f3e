#include "dev/host/headless/HeadlessView.h"
#include "dev/host/model/HostApplication.h"
#include "tests/support/FatalWarnings.h"

#include <pvInterface/pvInterfacePtr.h>

#include <QTest>

using devhost::BlockPrompt;
using devhost::BlockPromptAnswer;

/// What the tests of the add-in rely on in their host without looking at it.
class HostModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_warnings = std::make_unique<test::FatalWarnings>(); }
    void cleanup() { m_warnings.reset(); }

    void referencesAreCounted();
    void promptsAreAnsweredOneAtATime();
    void blocksArePlaced();

private:
    std::unique_ptr<test::FatalWarnings> m_warnings;
    devhost::HeadlessView m_view;
    std::shared_ptr<devhost::HostApplication> m_host = std::make_shared<devhost::HostApplication>(m_view);
};

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

void HostModelTest::promptsAreAnsweredOneAtATime()
{
    const auto prompt = [this] {
        pvCommandMessage_c* message = nullptr;
        m_host->GetCommandMessage(&message);
        double out = 0;
        pvPromptResultType_e result{};
        message->PromptForBlockInsertion(L"a.dwg", true, 1, 1, 1, true, 0, &out, &out, &out, &out, &out, &out,
                                         &out, &result);
        return int(result);
    };
    int inner = -1;
    m_view.answerPrompts([&](const BlockPrompt&) {
        inner = prompt();
        return BlockPromptAnswer{BlockPromptAnswer::Accepted, {}};
    });
    QCOMPARE(prompt(), int(BlockPromptAnswer::Accepted));
    QCOMPARE(inner, int(BlockPromptAnswer::Cancelled));
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
