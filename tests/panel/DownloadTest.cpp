#include "panel/DownloadedFile.h"
#include "panel/PreviewUI.h"
#include "service/SessionValues.h"
#include "tests/panel/PanelFixture.h"
#include "tests/support/CannedReplies.h"
#include "tests/support/ScriptedConnection.h"

#include <QDir>
#include <QFile>
#include <QNetworkAccessManager>
#include <QPushButton>
#include <QtTest>

using devhost::BlockPrompt;
using devhost::BlockPromptAnswer;
using test::addressOf;
using test::downloadOperation;
using test::PanelFixture;
using test::pictureReply;
using test::ScriptedReply;

Q_DECLARE_METATYPE(test::ScriptedReply)

namespace
{

const QByteArray drawing = "AC1015 a drawing";
const QString drawingPath = "/files/part.dwg";
const BlockPromptAnswer accepted{BlockPromptAnswer::Accepted, {1, 2, 3, 4, 5, 6, 7}};

void writeFile(const QString& name, const QByteArray& content)
{
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qCritical("Cannot write %s", qPrintable(name));
}

} // namespace

/// The download of a drawing and its way into the host.
class DownloadTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { m_panel.reset(); }

    void needsALogin();
    void asksForTheModel();
    void drawingIsInserted();
    void otherAnswersInsertNothing_data();
    void otherAnswersInsertNothing();
    void hostObjectsMayBeMissing_data();
    void hostObjectsMayBeMissing();
    void fileNames_data();
    void fileNames();
    void eachDownloadHasANumber();
    void formerFilesGo();
    void drawingIsCompleteAtThePrompt();
    void whatTheNetworkLeavesIsOffered_data();
    void whatTheNetworkLeavesIsOffered();
    void onlyTheWebIsAsked_data();
    void onlyTheWebIsAsked();
    void unusableFileNames_data();
    void unusableFileNames();
    void frameIsDisabledForAMoment();
    void newerClickDropsTheRequest();
    void newerClickDropsTheFile();
    void newestDrawingWaitsForThePrompt();
    void drawingOfAnotherPageWaits();
    void closedPaneLeavesNoFile_data();
    void closedPaneLeavesNoFile();
    void paneMayCloseUnderThePrompt_data();
    void paneMayCloseUnderThePrompt();
    void drawingMayCloseUnderThePrompt();

private:
    /// @return the names of the files that the host was asked to place.
    QStringList prompted() const;
    void waitForDownload();
    void downloadAnother();
    void openAnother(int row);
    QStringList insertions() const { return m_panel->host().journal().lines().filter("InsertBlock2"); }

    std::unique_ptr<PanelFixture> m_panel;
};

/// The values of the process, before any page has been there.
void DownloadTest::initTestCase()
{
    QCOMPARE(g_downloadCounter, 0);
    QCOMPARE(UserToken, QString());
}

void DownloadTest::init()
{
    m_panel = std::make_unique<PanelFixture>();
    m_panel->host().newDocument();
    m_panel->offerDrawing(drawingPath, pictureReply(drawing));
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

/// Waits until the page has no download under way.
void DownloadTest::waitForDownload()
{
    QTRY_VERIFY(m_panel->shown<PreviewUI>()->findChildren<QNetworkAccessManager*>().isEmpty());
}

/// Downloads a drawing to its end.
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
    QTest::mouseClick(m_panel->shown<QPushButton>("pushButton"), Qt::LeftButton);
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
    QVERIFY(m_panel->service().requests(downloadOperation).isEmpty());
}

void DownloadTest::asksForTheModel()
{
    m_panel->clickPreview();
    QTRY_COMPARE(m_panel->service().requests(downloadOperation).size(), 1);
    const QVector<QPair<QString, QString>> elements{{"apiKey", "key"},
                                                    {"userToken", "token"},
                                                    {"supplierName", "Supplier"},
                                                    {"modelName", "Part 1"},
                                                    {"configName", "M8"},
                                                    {"formatName", "dwg"},
                                                    {"version", "R2002"},
                                                    {"units", "cm"},
                                                    {"inputParameters", ""},
                                                    {"drawingView", "eDrawingView_PREDEFINED"},
                                                    {"hiddenEdge", "eHiddenEdge_UNSPECIFIED"},
                                                    {"tangentEdge", "eTangentEdge_UNSPECIFIED"},
                                                    {"zipOutput", "false"},
                                                    {"endUser", "Plotvane"}};
    for (const auto& [name, text] : elements)
        QCOMPARE(m_panel->sent(downloadOperation, name), QStringList(text));
    QTRY_COMPARE(m_panel->service().requests(drawingPath).size(), 1);
    QCOMPARE(m_panel->service().requests(drawingPath)[0].method, QByteArray("GET"));
}

void DownloadTest::drawingIsInserted()
{
    QString cited;
    m_panel->view().answerPrompts([&cited](const BlockPrompt& prompt) {
        cited = '"' + prompt.file + '"';
        return accepted;
    });
    m_panel->clickPreview();
    QTRY_COMPARE(insertions().size(), 1);
    QCOMPARE(cited, '"' + QDir::currentPath() + "/part0.dwg\"");
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

void DownloadTest::otherAnswersInsertNothing_data()
{
    QTest::addColumn<int>("result");
    for (const int result : {0, 2, 3})
        QTest::addRow("%d", result) << result;
}

void DownloadTest::otherAnswersInsertNothing()
{
    QFETCH(int, result);
    m_panel->view().answerPrompts([result](const BlockPrompt&) {
        return BlockPromptAnswer{static_cast<BlockPromptAnswer::Result>(result), {}};
    });
    m_panel->clickPreview();
    QTRY_COMPARE(prompted(), QStringList("part0.dwg"));
    QTRY_VERIFY(m_panel->files().isEmpty());
    QVERIFY(insertions().isEmpty());
    QVERIFY(m_panel->boxTexts().isEmpty());
}

void DownloadTest::hostObjectsMayBeMissing_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<bool>("prompts");
    QTest::addRow("document") << "GetActiveDocument" << false;
    QTest::addRow("command messages") << "GetCommandMessage" << false;
    QTest::addRow("model") << "Document.GetModel" << true;
    QTest::addRow("sketch manager") << "Model.GetSketchManager" << true;
    QTest::addRow("prompt") << "CommandMessage.PromptForBlockInsertion" << false;
}

void DownloadTest::hostObjectsMayBeMissing()
{
    QFETCH(QString, call);
    QFETCH(bool, prompts);
    m_panel->view().answerPrompts([](const BlockPrompt&) { return accepted; });
    m_panel->host().answers().fail(call, PVRESULT_False);
    m_panel->clickPreview();
    QTRY_VERIFY(m_panel->host().journal().lines().contains("GetCommandMessage()"));
    QTRY_VERIFY(m_panel->files().isEmpty());
    QCOMPARE(prompted().size(), prompts ? 1 : 0);
    QVERIFY(insertions().isEmpty());
    QVERIFY(m_panel->boxTexts().isEmpty());
}

void DownloadTest::fileNames_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");
    QTest::addRow("plain") << "/a/part.dwg"
                           << "part0.dwg";
    QTest::addRow("query") << "/part.dwg?file=../other.dwg&x=/y"
                           << "part0.dwg";
    QTest::addRow("fragment") << "/part.dwg#/z"
                              << "part0.dwg";
    QTest::addRow("no name") << "/a/b/"
                             << "index.html0.dwg";
    QTest::addRow("no path") << ""
                             << "index.html0.dwg";
    QTest::addRow("query alone") << "?part.dwg"
                                 << "index.html0.dwg";
    QTest::addRow("zero character") << "/victim%00part.dwg"
                                    << "part0.dwg";
    QTest::addRow("twice .dwg") << "/part.dwg.dwg"
                                << "part0.dwg";
    QTest::addRow(".dwg inside") << "/a.dwgb.dwg"
                                 << "ab0.dwg";
    QTest::addRow("only .dwg") << "/.dwg"
                               << "0.dwg";
    QTest::addRow(".DWG stays") << "/part.DWG"
                                << "part.DWG0.dwg";
    QTest::addRow("other suffix") << "/part.zip"
                                  << "part.zip0.dwg";
    QTest::addRow("encoded") << "/St%C3%BCck%20M8.dwg" << QString::fromUtf8("Stück M80.dwg");
    QTest::addRow("..") << "/a/.."
                        << "..0.dwg";
    QTest::addRow("upwards") << "/a/../../part.dwg"
                             << "part0.dwg";
    QTest::addRow("encoded slash") << "/a%2Fb%2Fpart.dwg"
                                   << "part0.dwg";
    QTest::addRow("encoded upwards") << "/a/..%2F..%2Fpart.dwg"
                                     << "part0.dwg";
    QTest::addRow("encoded root") << "/%2Fetc%2Fpart.dwg"
                                  << "part0.dwg";
    QTest::addRow("backslashes") << "/a%5C..%5Cpart.dwg"
                                 << "part0.dwg";
    QTest::addRow("drive") << "/C%3Apart.dwg"
                           << "part0.dwg";
    QTest::addRow("bundle") << "/%3A%2F3DPH%2Fpart.dwg"
                            << "part0.dwg";
}

void DownloadTest::fileNames()
{
    QFETCH(QString, path);
    QFETCH(QString, name);
    m_panel->service().setReply(downloadOperation, ScriptedReply::result(downloadOperation, addressOf(path)));
    m_panel->clickPreview();
    QTRY_COMPARE(m_panel->view().prompts().size(), std::size_t(1));
    QCOMPARE(m_panel->view().prompts()[0].file, QDir::currentPath() + '/' + name);
    QVERIFY(!m_panel->view().promptedContents()[0].isEmpty()); // it was there
    QTRY_VERIFY(m_panel->files().isEmpty());
}

void DownloadTest::eachDownloadHasANumber()
{
    for (int i = 0; i < 3; ++i) {
        m_panel->clickPreview();
        QTRY_COMPARE(prompted().size(), i + 1);
    }
    QCOMPARE(prompted(), QStringList({"part0.dwg", "part1.dwg", "part2.dwg"}));
    QCOMPARE(g_downloadCounter, 3);
    g_downloadCounter = -7;
    m_panel->clickPreview();
    QTRY_COMPARE(prompted().size(), 4);
    QCOMPARE(prompted()[3], QString("part-7.dwg"));
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
             drawing + QByteArray("longer than the drawing that comes").mid(drawing.size()));
    QTRY_COMPARE(m_panel->files(), QStringList("other.dwg"));
}

void DownloadTest::drawingIsCompleteAtThePrompt()
{
    QByteArray large(3 * 1000 * 1000, '\0');
    for (int i = 0; i < large.size(); ++i)
        large[i] = static_cast<char>(i * 7);
    m_panel->service().setReply(drawingPath, pictureReply(large).heldAfter(large.size() / 2));
    m_panel->clickPreview();
    QTRY_COMPARE(m_panel->service().heldCount(), 1);
    QTRY_COMPARE(m_panel->files(), QStringList("part0.dwg"));
    QVERIFY(prompted().isEmpty());
    m_panel->service().releaseAll();
    QTRY_COMPARE(prompted(), QStringList("part0.dwg"));
    QCOMPARE(m_panel->view().promptedContents()[0].size(), large.size());
    QVERIFY(m_panel->view().promptedContents()[0] == large);
}

void DownloadTest::whatTheNetworkLeavesIsOffered_data()
{
    QTest::addColumn<ScriptedReply>("reply");
    QTest::addColumn<QByteArray>("content");
    QTest::addRow("cut short") << ScriptedReply::cutShort(drawing, 100) << drawing;
    QTest::addRow("empty") << pictureReply({}) << QByteArray();
    QTest::addRow("reset") << ScriptedReply::reset() << QByteArray();
    QTest::addRow("no HTTP") << ScriptedReply::raw("?") << QByteArray();
    QTest::addRow("error page") << ScriptedReply::status(500, "sorry") << QByteArray("sorry");
    QTest::addRow("redirection") << ScriptedReply::status(302).withHeader("Location", "/elsewhere.dwg")
                                 << QByteArray();
}

void DownloadTest::whatTheNetworkLeavesIsOffered()
{
    QFETCH(ScriptedReply, reply);
    m_panel->service().setReply(drawingPath, reply);
    m_panel->clickPreview();
    QTRY_COMPARE(prompted(), QStringList("part0.dwg"));
    QTEST(m_panel->view().promptedContents()[0], "content");
    QTRY_VERIFY(m_panel->files().isEmpty());
}

void DownloadTest::onlyTheWebIsAsked_data()
{
    QTest::addColumn<QString>("address");
    QTest::addRow("file") << "file://%1/elsewhere/secret.dwg";
    QTest::addRow("device") << "file:///dev/zero";
    QTest::addRow("data") << "data:,secret.dwg";
    QTest::addRow("bundle") << "qrc:/3DPH/Login.xml";
    QTest::addRow("no address") << "secret.dwg";
    QTest::addRow("no sense") << "https://[";
}

void DownloadTest::onlyTheWebIsAsked()
{
    QFETCH(QString, address);
    QDir().mkdir("elsewhere");
    writeFile("elsewhere/secret.dwg", "secret");
    address.replace("%1", QDir::currentPath());
    m_panel->service().setReply(downloadOperation, ScriptedReply::result(downloadOperation, address));
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
    m_panel->offerDrawing(path, pictureReply(drawing));
    m_panel->clickPreview();
    QTRY_COMPARE(g_downloadCounter, 1);
    QVERIFY(m_panel->shown<PreviewUI>()->findChild<QWidget*>("frame")->isEnabled());
    QVERIFY(QDir("taken0.dwg").exists());

    m_panel->offerDrawing(drawingPath, pictureReply(drawing));
    m_panel->clickPreview(); // the next one works
    QTRY_COMPARE(prompted(), QStringList("part1.dwg"));
    QVERIFY(m_panel->service().requests(path).isEmpty());
    QVERIFY(m_panel->boxTexts().isEmpty());
}

void DownloadTest::frameIsDisabledForAMoment()
{
    class Watch : public QObject
    {
    public:
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            if (event->type() == QEvent::EnabledChange)
                states.append(qobject_cast<QWidget*>(watched)->isEnabled());
            return false;
        }
        QList<bool> states;
    } watch;
    m_panel->shown<PreviewUI>()->findChild<QWidget*>("frame")->installEventFilter(&watch);
    m_panel->service().setReply(drawingPath, pictureReply(drawing).held());
    m_panel->clickPreview();
    QTRY_COMPARE(m_panel->service().heldCount(), 1);
    QCOMPARE(watch.states, QList<bool>({false, true})); // long before the drawing is there
    QVERIFY(m_panel->container()->isAncestorOf(QApplication::focusWidget())); // nor has the focus gone
}

void DownloadTest::newerClickDropsTheRequest()
{
    m_panel->service().enqueue(
        downloadOperation, ScriptedReply::result(downloadOperation, addressOf("/files/older.dwg")).held());
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
    m_panel->service().enqueue(drawingPath, pictureReply(drawing).heldAfter(5));
    m_panel->clickPreview();
    QTRY_COMPARE(m_panel->files(), QStringList("part0.dwg"));
    QTRY_COMPARE(m_panel->service().heldCount(), 1);
    m_panel->clickPreview();
    QCOMPARE(m_panel->files(), QStringList()); // at once
    QTRY_COMPARE(prompted(), QStringList("part1.dwg"));
    m_panel->service().releaseAll();
    waitForDownload();
    QCOMPARE(prompted(), QStringList("part1.dwg"));
    QTRY_VERIFY(m_panel->files().isEmpty());
}

void DownloadTest::newestDrawingWaitsForThePrompt()
{
    QStringList during;
    m_panel->view().answerPrompts([this, &during](const BlockPrompt&) {
        if (prompted().size() == 1) {
            downloadAnother();
            downloadAnother();
            during = m_panel->files();
        }
        return accepted;
    });
    m_panel->clickPreview();
    QTRY_COMPARE(prompted(), QStringList({"part0.dwg", "part2.dwg"}));
    QCOMPARE(during, QStringList({"part0.dwg", "part2.dwg"}));
    QCOMPARE(m_panel->view().promptedContents()[1], drawing);
    QTRY_VERIFY(m_panel->files().isEmpty());
    QCOMPARE(insertions().size(), 2);
    QVERIFY(insertions()[0].contains("part0.dwg") && insertions()[1].contains("part2.dwg"));
}

void DownloadTest::drawingOfAnotherPageWaits()
{
    m_panel->view().answerPrompts([this](const BlockPrompt&) {
        if (prompted().size() > 1)
            return accepted;
        for (const int row : {1, 2}) {
            openAnother(row);
            downloadAnother();
        }
        return accepted;
    });
    m_panel->clickPreview();
    QTRY_COMPARE(prompted(), QStringList({"part0.dwg", "part2.dwg"}));
    QTRY_VERIFY(m_panel->files().isEmpty());
    QCOMPARE(m_panel->sent(downloadOperation, "modelName"), QStringList({"Part 1", "Part 2", "Part 3"}));
}

void DownloadTest::closedPaneLeavesNoFile_data()
{
    QTest::addColumn<bool>("requesting");
    QTest::addRow("while the drawing is made") << true;
    QTest::addRow("while it comes") << false;
}

void DownloadTest::closedPaneLeavesNoFile()
{
    QFETCH(bool, requesting);
    if (requesting)
        m_panel->service().setReply(downloadOperation,
                                    ScriptedReply::result(downloadOperation, addressOf(drawingPath)).held());
    else
        m_panel->service().setReply(drawingPath, pictureReply(drawing).heldAfter(5));
    m_panel->clickPreview();
    QTRY_COMPARE(m_panel->service().heldCount(), 1);
    QCOMPARE(m_panel->files().size(), requesting ? 0 : 1);
    m_panel->closePane();
    QVERIFY(m_panel->files().isEmpty());
    m_panel->service().releaseAll();
    QTRY_VERIFY(m_panel->service().findChildren<test::ScriptedConnection*>().isEmpty());
    QVERIFY(m_panel->host().journal().lines().isEmpty());
    QVERIFY(m_panel->files().isEmpty());
}

void DownloadTest::paneMayCloseUnderThePrompt_data()
{
    QTest::addColumn<bool>("another");
    QTest::addRow("one drawing") << false;
    QTest::addRow("another one waiting") << true;
}

void DownloadTest::paneMayCloseUnderThePrompt()
{
    QFETCH(bool, another);
    int managers = -1; // of the page, with which they would go while the toolkit still works on the reply
    m_panel->view().answerPrompts([this, another, &managers](const BlockPrompt&) {
        managers = m_panel->shown<QWidget>("PreviewUI")->findChildren<QNetworkAccessManager*>().size();
        if (another)
            downloadAnother();
        m_panel->closePane();
        return accepted;
    });
    m_panel->clickPreview();
    QTRY_VERIFY(!m_panel->isPaneOpen());
    QTRY_VERIFY(m_panel->files().isEmpty());
    QCOMPARE(managers, 0);
    QCOMPARE(prompted(), QStringList("part0.dwg"));
    QVERIFY(m_panel->host().journal().lines().last().contains("PromptForBlockInsertion"));
    QCOMPARE(m_panel->host().references().outstanding(), 0);
}

void DownloadTest::drawingMayCloseUnderThePrompt()
{
    m_panel->view().answerPrompts([this](const BlockPrompt&) {
        m_panel->host().closeActiveDocument();
        return accepted;
    });
    m_panel->clickPreview();
    QTRY_COMPARE(prompted(), QStringList("part0.dwg"));
    QTRY_VERIFY(m_panel->files().isEmpty());
    QCOMPARE(m_panel->host().references().outstanding(), 0);
}

QTEST_MAIN(DownloadTest)
#include "DownloadTest.moc"
