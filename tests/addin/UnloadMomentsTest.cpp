#include "dev/host/headless/PaneUser.h"
#include "tests/addin/LoadedAddIn.h"
#include "tests/support/NetworkWatch.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace
{

const char* const ChildMark = "UNLOADS_IN_THIS_PROCESS";

QStringList filesHere()
{
    return QDir::current().entryList(QDir::Files | QDir::Hidden);
}

} // namespace

/// The host disconnects and unloads the library at the worst moments of a user's way to a placed drawing.
/// Each in a process of its own, for what is left behind shows in the code of others, and often much later.
class UnloadMomentsTest : public QObject
{
    Q_OBJECT

private slots:
    void moments_data();
    void moments();

private:
    void unloadHere();
    /// Goes the way until a reply is held, or the host has disconnected.
    void goOn(bool logsIn);
    /// Disconnects with a box or prompt open.
    void disconnectAt(const QString& moment);
    /// @return whether the user need not wait any longer.
    bool waitOrStop(const std::function<bool()>& condition);
    bool isStopped() const { return m_isDisconnected || m_addIn->catalog().service().heldCount() > 0; }
    void disconnect();
    void compareNothingLeft();

    std::unique_ptr<test::LoadedAddIn> m_addIn;
    test::NetworkWatch m_network;
    bool m_isDisconnected = false;
};

void UnloadMomentsTest::moments_data()
{
    QTest::addColumn<QString>("held"); // key of the reply that is half read
    QTest::addRow("at once") << QString();
    for (const char* held :
         {"ServiceLogin", "GenerateApiKeyByDescription", "UserLogin", "SimpleSearchAcrossCatalogs",
          "/pictures/part.png", "GetConfigInfo", "GetConfigParams", "GetDownload2D", "/part.dwg"})
        QTest::addRow("%s", held) << QString(held);
    for (const char* open : {"prompt", "login box", "error box"})
        QTest::addRow("%s", open) << QString();
}

void UnloadMomentsTest::moments()
{
    if (qEnvironmentVariableIsSet(ChildMark)) {
        unloadHere();
        return;
    }
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(ChildMark, "1");
    QProcess child;
    child.setProcessEnvironment(environment);
    child.setProcessChannelMode(QProcess::MergedChannels);
    child.start(QCoreApplication::applicationFilePath(), {QString("moments:") + QTest::currentDataTag()});
    QVERIFY(child.waitForFinished(60000));
    QVERIFY2(child.exitStatus() == QProcess::NormalExit && child.exitCode() == 0, child.readAll());
}

void UnloadMomentsTest::unloadHere()
{
    QFETCH(QString, held);
    const QString moment = QTest::currentDataTag();
    const QTemporaryDir folder;
    QDir::setCurrent(folder.path());
    m_addIn = std::make_unique<test::LoadedAddIn>();
    m_addIn->openCatalog(held);
    m_addIn->host().newDocument();
    disconnectAt(moment);

    QVERIFY(m_addIn->connect());
    if (moment != "at once")
        goOn(moment != "error box");
    if (!m_isDisconnected)
        disconnect();
    // No frame of the add-in is on the stack; what Qt has put off is still to come.
    QVERIFY(m_addIn->library().unload());
    compareNothingLeft();
    m_addIn.reset();
    QDir::setCurrent(QDir::rootPath());
}

void UnloadMomentsTest::disconnectAt(const QString& moment)
{
    m_addIn->view().answerPrompts([=](const devhost::BlockPrompt& prompt) {
        if (moment == "prompt")
            disconnect();
        return devhost::BlockPromptAnswer{devhost::BlockPromptAnswer::Accepted, prompt.preset};
    });
    if (moment.endsWith("box"))
        connect(&m_addIn->answerer(), &test::MessageBoxAnswerer::opened, this, [this] { disconnect(); });
}

void UnloadMomentsTest::disconnect()
{
    // A reply of which something has come: a drawing's bytes are in its file.
    if (m_addIn->catalog().service().heldCount() > 0)
        QVERIFY(test::waitUntil([this] { return m_network.isHalfRead() || !filesHere().isEmpty(); }));
    m_isDisconnected = true;
    QVERIFY(m_addIn->disconnect());
}

bool UnloadMomentsTest::waitOrStop(const std::function<bool()>& condition)
{
    const bool waited = test::waitUntil([&] { return isStopped() || condition(); });
    return !waited || isStopped();
}

void UnloadMomentsTest::goOn(bool logsIn)
{
    const devhost::PaneUser user(m_addIn->view());
    // Both pages have their key: only then can the panel search.
    if (waitOrStop([this] { return m_addIn->warnings().debugLines().size() == 4; }))
        return;
    if (logsIn) {
        user.logIn("a@b.example", "secret");
        if (waitOrStop([this] { return !m_addIn->answerer().boxes().isEmpty(); }))
            return;
    }
    user.openSearchTab();
    user.typeTerm("bolt");
    user.pressReturn();
    if (waitOrStop([&] { return !user.rows().isEmpty(); }))
        return;
    user.openPart(0);
    test::ScriptedService& service = m_addIn->catalog().service();
    if (waitOrStop([&] { return service.requests("GetConfigParams").size() == 1; }))
        return;
    QTest::mousePress(user.preview(), Qt::LeftButton); // which may take the preview away
    waitOrStop([] { return false; });
}

void UnloadMomentsTest::compareNothingLeft()
{
    test::ScriptedService& service = m_addIn->catalog().service();
    QCOMPARE(filesHere(), QStringList());
    QVERIFY(test::waitUntil([this] { return m_network.isIdle(); }));
    service.releaseAll();
    QVERIFY(test::waitUntil([&] { return service.openConnections() == 0; }));
    for (int turn = 0; turn < 1000; ++turn)
        QCoreApplication::processEvents();

    QVERIFY(!m_addIn->library().isMapped());
    QCOMPARE(filesHere(), QStringList());
    QCOMPARE(m_addIn->registrations(), QStringList());
    QCOMPARE(m_addIn->host().references().outstanding(), 0);
    QCOMPARE(m_addIn->host().references().errors(), QStringList());
    QCOMPARE(QApplication::allWidgets(), QWidgetList());
}

QTEST_MAIN(UnloadMomentsTest)
#include "UnloadMomentsTest.moc"
