#include "panel/DownloadedFile.h"
#include "panel/PreviewUI.h"
#include "service/SessionValues.h"
#include "tests/panel/PanelFixture.h"
#include "tests/support/CannedReplies.h"
#include "tests/support/EventCounter.h"

#include <QDir>
#include <QFile>
#include <QTest>

using devhost::BlockPrompt;
using devhost::BlockPromptAnswer;
using test::addressOf;
using test::DownloadOperationName;
using test::PanelFixture;
using test::pictureReply;
using test::ScriptedReply;

namespace
{

const QByteArray Drawing = "AC1015 a drawing";
const QString DrawingPath = "/files/part.dwg";
const BlockPromptAnswer AcceptedAnswer{BlockPromptAnswer::Accepted, {1, 2, 3, 4, 5, 6, 7}};

void writeFile(const QString& name, const QByteArray& content)
{
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qCritical("Cannot write %s", qPrintable(name));
}

} // namespace

/// The download of a Drawing and its way into the host.
class DownloadTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_panel.reset(); }

    void needsALogin();
    void drawingIsInserted();
    void nothingIsInserted();
    void fileNames_data();
    void fileNames();
    void formerFilesGo();
    void drawingIsCompleteAtThePrompt();
    void whatIsEmptyIsOffered_data();
    void whatIsEmptyIsOffered();
    void unusableFileNames_data();
    void unusableFileNames();
    void fullDisk_data();
    void fullDisk();
    void newerClickDropsTheRequest();
    void newerClickDropsTheFile();
    void newestDrawingWaitsForThePrompt_data();
    void newestDrawingWaitsForThePrompt();
    void newerClickDropsAWaitingDrawing();
    void closingUnderThePrompt_data();
    void closingUnderThePrompt();

private:
    /// @return the names of the files that the host was asked to place.
    QStringList prompted() const;
    void waitForDownload();
    void downloadAnother();
    void openAnother(int row);
    QStringList insertions() const { return m_panel->host().journal().lines().filter("InsertBlock2"); }

    std::unique_ptr<PanelFixture> m_panel;
};

void DownloadTest::init()
{
    m_panel = std::make_unique<PanelFixture>();
    m_panel->host().newDocument();
    m_panel->offerDrawing(DrawingPath, pictureReply(Drawing));
    m_panel->openFirstPart();
    m_panel->host().journal().clear();
}

QStringList DownloadTest::prompted() const
{
    QStringList names;
    for (const BlockPrompt& prompt : m_panel->view().prompts())
        names.append(QFileInfo(prompt.file).fileName());
    return names;
}

/// Waits until the newest Drawing is on the disk, whole and for others to read.
void DownloadTest::waitForDownload()
{
    const QString name = QString("part%1.dwg").arg(g_downloadCounter - 1);
    QTRY_COMPARE(QFileInfo(name).size(), qint64(Drawing.size()));
}

/// Downloads a Drawing to its end.
void DownloadTest::downloadAnother()
{
    const int before = g_downloadCounter;
    m_panel->clickPreview();
    QTRY_COMPARE(g_downloadCounter, before + 1);
    waitForDownload();
}

/// Goes back and opens the part of another row.
void DownloadTest::openAnother(int row)
{
    m_panel->click("pushButton");
    QTRY_VERIFY(m_panel->row(row) != nullptr);
    m_panel->openPart(row);
}

void DownloadTest::needsALogin()
{
    UserToken.clear();
    m_panel->clickPreview();
    QCOMPARE(m_panel->boxTexts(), QStringList("Please Login to 3DPH to Download."));
    QCOMPARE(m_panel->answerer().boxes()[0].title, QString("Error"));
    m_panel->closePaneWithNextBox();
    m_panel->clickPreview();
    QVERIFY(!m_panel->isPaneOpen());
    QVERIFY(m_panel->service().requests(DownloadOperationName).isEmpty());
}

void DownloadTest::drawingIsInserted()
{
    QString cited;
    m_panel->view().answerPrompts([&cited](const BlockPrompt& prompt) {
        cited = '"' + prompt.file + '"';
        return AcceptedAnswer;
    });
    m_panel->clickPreview();
    QTRY_COMPARE(insertions().size(), 1);
    QCOMPARE(cited, '"' + QDir::currentPath() + "/part0.dwg\"");
    QCOMPARE(m_panel->service().requests(DrawingPath)[0].method, QByteArray("GET"));
    const QString id = '[' + m_panel->host().activeDocument()->name() + ']';
    QCOMPARE(m_panel->host().journal().lines(),
             QStringList({"GetActiveDocument()", "GetCommandMessage()", "Document" + id + ".GetModel()",
                          "Model.GetSketchManager()",
                          "CommandMessage.PromptForBlockInsertion(" + cited + ", true, 1, 1, 1, true, 0)",
                          "SketchManager.InsertBlock2(" + cited + ", 1, 2, 3, 4, 5, 6, 7)"}));
    QVERIFY(m_panel->files().isEmpty());
    QCOMPARE(m_panel->host().references().outstanding(), 0);
    QVERIFY(m_panel->boxTexts().isEmpty());
}

/// Whatever the prompt's answer is but acceptance.
void DownloadTest::nothingIsInserted()
{
    for (const int result : {0, 2, 3}) {
        const int before = prompted().size();
        m_panel->view().answerPrompts([result](const BlockPrompt&) {
            return BlockPromptAnswer{static_cast<BlockPromptAnswer::Result>(result), {}};
        });
        m_panel->clickPreview();
        QTRY_COMPARE(prompted().size(), before + 1);
        QTRY_VERIFY(m_panel->files().isEmpty());
    }
    QVERIFY(insertions().isEmpty());
    QVERIFY(m_panel->boxTexts().isEmpty());
}

void DownloadTest::fileNames_data()
{
    QTest::addColumn<QString>("name");
    const QVector<QPair<const char*, const char*>> names{
        {"/a/part.dwg", "part0.dwg"},
        {"/part.dwg?file=../other.dwg&x=/y", "part0.dwg"},
        {"/a/b/", "index.html0.dwg"},
        {"", "index.html0.dwg"},
        {"?part.dwg", "index.html0.dwg"},
        {"/victim%00part.dwg", "part0.dwg"},
        {"/part.dwg.dwg", "part0.dwg"},
        {"/a.dwgb.dwg", "ab0.dwg"},
        {"/.dwg", "0.dwg"},
        {"/part.DWG", "part.DWG0.dwg"},
        {"/St%C3%BCck%20M8.dwg", "Stück M80.dwg"},
        {"/a/..", "..0.dwg"},
        {"/a/..%2F..%2Fpart.dwg", "part0.dwg"},
        {"/%2Fetc%2Fpart.dwg", "part0.dwg"},
        {"/a%5C..%5Cpart.dwg", "part0.dwg"},
        {"/C%3Apart.dwg", "part0.dwg"},
        {"/%3A%2F3DPH%2Fpart.dwg", "part0.dwg"},
    };
    for (const auto& [path, name] : names)
        QTest::newRow(path) << QString::fromUtf8(name);
}

void DownloadTest::fileNames()
{
    QFETCH(QString, name);
    const QString address = addressOf(QTest::currentDataTag());
    m_panel->service().setReply(DownloadOperationName, ScriptedReply::result(DownloadOperationName, address));
    m_panel->clickPreview();
    QTRY_COMPARE(m_panel->view().prompts().size(), std::size_t(1));
    QCOMPARE(m_panel->view().prompts()[0].file, QDir::currentPath() + '/' + name);
    QVERIFY(!m_panel->view().promptedContents()[0].isEmpty()); // it was there
    QTRY_VERIFY(m_panel->files().isEmpty());
}

void DownloadTest::formerFilesGo()
{
    writeFile("part.dwg", "of the address's own name");
    writeFile("other.dwg", "somebody's");
    writeFile("part0.dwg", "longer than the drawing that comes");
    m_panel->clickPreview();
    QTRY_COMPARE(prompted(), QStringList("part0.dwg"));
    // Overwritten, not truncated.
    QCOMPARE(m_panel->view().promptedContents()[0],
             Drawing + QByteArray("longer than the drawing that comes").mid(Drawing.size()));
    QTRY_COMPARE(m_panel->files(), QStringList("other.dwg"));
}

void DownloadTest::drawingIsCompleteAtThePrompt()
{
    QByteArray large(3 * 1000 * 1000, '\0');
    for (int i = 0; i < large.size(); ++i)
        large[i] = static_cast<char>(i * 7);
    m_panel->service().setReply(DrawingPath, pictureReply(large).heldAfter(large.size() / 2));
    m_panel->clickPreview();
    QTRY_COMPARE(m_panel->service().heldCount(), 1);
    QTRY_COMPARE(m_panel->files(), QStringList("part0.dwg"));
    QVERIFY(prompted().isEmpty());
    m_panel->service().releaseAll();
    QTRY_COMPARE(prompted(), QStringList("part0.dwg"));
    QCOMPARE(m_panel->view().promptedContents()[0].size(), large.size());
    QVERIFY(m_panel->view().promptedContents()[0] == large);
}

void DownloadTest::whatIsEmptyIsOffered_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<ScriptedReply>("reply");
    QTest::newRow("empty") << addressOf(DrawingPath) << pictureReply({});
    // Addresses that nothing is fetched from.
    for (const char* address : {"file://%1/elsewhere/secret.dwg", "file:///dev/zero", "data:,secret.dwg",
                                "qrc:/3DPH/Login.xml", "secret.dwg", "https://["})
        QTest::newRow(address) << QString(address) << pictureReply(Drawing);
}

void DownloadTest::whatIsEmptyIsOffered()
{
    QFETCH(QString, address);
    QFETCH(ScriptedReply, reply);
    QDir().mkdir("elsewhere");
    writeFile("elsewhere/secret.dwg", "secret");
    address.replace("%1", QDir::currentPath());
    m_panel->service().setReply(DownloadOperationName, ScriptedReply::result(DownloadOperationName, address));
    m_panel->service().setReply(DrawingPath, reply);
    m_panel->clickPreview();
    QTRY_COMPARE(prompted().size(), 1);
    QCOMPARE(m_panel->view().promptedContents()[0], QByteArray());
    QTRY_VERIFY(m_panel->files().isEmpty());
}

void DownloadTest::unusableFileNames_data()
{
    QTest::addColumn<QString>("path");
    QTest::addRow("taken by a folder") << "/taken.dwg";
    QTest::addRow("too long") << '/' + QString(300, 'x') + ".dwg";
}

void DownloadTest::unusableFileNames()
{
    QFETCH(QString, path);
    QDir().mkdir("taken0.dwg");
    m_panel->offerDrawing(path, pictureReply(Drawing));
    auto* frame = m_panel->shown<PreviewUI>()->findChild<QWidget*>("frame");
    QCoreApplication::processEvents();
    test::EventCounter counter(frame);
    m_panel->clickPreview();
    QTRY_COMPARE(g_downloadCounter, 1);
    QCoreApplication::processEvents();
    QCOMPARE(counter.count(QEvent::EnabledChange), 2); // disabled and enabled again,
    QCOMPARE(counter.count(QEvent::Paint), 0);         // which nobody could have seen
    frame->parentWidget()->update();
    QTRY_COMPARE(counter.count(QEvent::Paint), 1);
    for (const QWidget* widget : frame->findChildren<QWidget*>())
        QVERIFY(widget->updatesEnabled());
    QVERIFY(QDir("taken0.dwg").exists());

    m_panel->offerDrawing(DrawingPath, pictureReply(Drawing));
    m_panel->clickPreview(); // the next one works
    QTRY_COMPARE(prompted(), QStringList("part1.dwg"));
    QVERIFY(m_panel->service().requests(path).isEmpty());
    QVERIFY(m_panel->boxTexts().isEmpty());
}

void DownloadTest::fullDisk_data()
{
    QTest::addColumn<int>("size");
    QTest::addRow("found out at the end") << 100;
    QTest::addRow("found out on the way") << 3'000'000;
}

void DownloadTest::fullDisk()
{
    QFETCH(int, size);
    if (!QFile::link("/dev/full", "part0.dwg") || !QFile::exists("part0.dwg"))
        QSKIP("There is no device that is always full.");
    m_panel->service().enqueue(DrawingPath, pictureReply(QByteArray(size, 'x')));
    m_panel->clickPreview();
    QTRY_VERIFY(!QFileInfo("part0.dwg").isSymLink()); // the file has gone
    m_panel->clickPreview();
    QTRY_COMPARE(prompted(), QStringList("part1.dwg"));
    QCOMPARE(m_panel->view().promptedContents()[0], Drawing);
    QVERIFY(m_panel->boxTexts().isEmpty());
}

void DownloadTest::newerClickDropsTheRequest()
{
    m_panel->service().enqueue(
        DownloadOperationName,
        ScriptedReply::result(DownloadOperationName, addressOf("/files/older.dwg")).held());
    m_panel->clickPreview();
    QTRY_COMPARE(m_panel->service().heldCount(), 1);
    m_panel->clickPreview();
    QTRY_COMPARE(prompted(), QStringList("part0.dwg"));
    m_panel->service().releaseAll();
    m_panel->clickPreview();
    QTRY_COMPARE(prompted(), QStringList({"part0.dwg", "part1.dwg"}));
    QVERIFY(m_panel->service().requests("/files/older.dwg").isEmpty());
}

void DownloadTest::newerClickDropsTheFile()
{
    m_panel->service().enqueue(DrawingPath, pictureReply(Drawing).heldAfter(5));
    m_panel->clickPreview();
    QTRY_COMPARE(m_panel->files(), QStringList("part0.dwg"));
    QTRY_COMPARE(m_panel->service().heldCount(), 1);
    QVERIFY(m_panel->container()->isAncestorOf(QApplication::focusWidget())); // though the page was disabled
    m_panel->clickPreview();
    QCOMPARE(m_panel->files(), QStringList()); // at once
    QTRY_COMPARE(prompted(), QStringList("part1.dwg"));
    m_panel->service().releaseAll();
    QTRY_COMPARE(m_panel->service().openConnections(), 0);
    QCOMPARE(prompted(), QStringList("part1.dwg"));
    QTRY_VERIFY(m_panel->files().isEmpty());
}

void DownloadTest::newestDrawingWaitsForThePrompt_data()
{
    QTest::addColumn<bool>("otherPages");
    QTest::addRow("of the same page") << false;
    QTest::addRow("of other pages") << true;
}

void DownloadTest::newestDrawingWaitsForThePrompt()
{
    QFETCH(bool, otherPages);
    QStringList during;
    m_panel->view().answerPrompts([&](const BlockPrompt&) {
        if (prompted().size() > 1)
            return AcceptedAnswer;
        for (const int row : {1, 2}) {
            if (otherPages)
                openAnother(row);
            downloadAnother();
        }
        during = m_panel->files();
        return AcceptedAnswer;
    });
    m_panel->clickPreview();
    QTRY_COMPARE(prompted(), QStringList({"part0.dwg", "part2.dwg"}));
    QCOMPARE(during, QStringList({"part0.dwg", "part2.dwg"}));
    QCOMPARE(m_panel->view().promptedContents()[1], Drawing);
    QTRY_VERIFY(m_panel->files().isEmpty());
    QCOMPARE(insertions().size(), 2);
    QVERIFY(insertions()[0].contains("part0.dwg") && insertions()[1].contains("part2.dwg"));
    const QStringList models{"Part 1", otherPages ? "Part 2" : "Part 1", otherPages ? "Part 3" : "Part 1"};
    QCOMPARE(m_panel->sent(DownloadOperationName, "modelName"), models);
}

/// The newer Drawing is still coming when the prompt returns, and must not be offered before it is complete.
void DownloadTest::newerClickDropsAWaitingDrawing()
{
    m_panel->view().answerPrompts([&](const BlockPrompt&) {
        if (prompted().size() > 1)
            return AcceptedAnswer;
        downloadAnother();
        m_panel->service().enqueue(DrawingPath, pictureReply(Drawing).heldAfter(5));
        m_panel->clickPreview();
        [this] { QTRY_COMPARE(m_panel->service().heldCount(), 1); }();
        return AcceptedAnswer;
    });
    m_panel->clickPreview();
    QTRY_COMPARE(m_panel->files(), QStringList("part2.dwg"));
    QCOMPARE(prompted(), QStringList("part0.dwg"));
    m_panel->service().releaseAll();
    QTRY_COMPARE(prompted(), QStringList({"part0.dwg", "part2.dwg"}));
    QCOMPARE(m_panel->view().promptedContents()[1], Drawing);
}

void DownloadTest::closingUnderThePrompt_data()
{
    QTest::addColumn<bool>("another");
    QTest::addColumn<bool>("pane");
    QTest::addRow("pane") << false << true;
    QTest::addRow("pane, another drawing waiting") << true << true;
    QTest::addRow("document") << false << false;
}

void DownloadTest::closingUnderThePrompt()
{
    QFETCH(bool, another);
    QFETCH(bool, pane);
    m_panel->view().answerPrompts([&](const BlockPrompt&) {
        if (another)
            downloadAnother();
        if (pane)
            m_panel->closePane();
        else
            m_panel->host().closeActiveDocument();
        return AcceptedAnswer;
    });
    m_panel->clickPreview();
    QTRY_COMPARE(prompted(), QStringList("part0.dwg"));
    QTRY_VERIFY(m_panel->files().isEmpty());
    QCOMPARE(m_panel->isPaneOpen(), !pane);
    QCOMPARE(insertions().size(), pane ? 0 : 1);
    QCOMPARE(m_panel->host().references().outstanding(), 0);
}

QTEST_MAIN(DownloadTest)
#include "DownloadTest.moc"
