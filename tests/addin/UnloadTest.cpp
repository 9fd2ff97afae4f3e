#include "devhost/model/AddInLibrary.h"
#include "devhost/model/DraftingInterface.h"
#include "devhost/model/HostApplication.h"
#include "tests/devhost/ScriptedHostView.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QNetworkProxy>
#include <QPixmapCache>
#include <QTcpServer>
#include <QTest>

#include <malloc.h>

namespace
{

int s_answeredRequests = 0;

/// Counts the replies that the add-in reports; everything else fails the test. It keeps no text: the heap is
/// being watched.
void countReplies(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    if (type == QtDebugMsg && text.startsWith("data"))
        ++s_answeredRequests;
    else if (!text.startsWith("This plugin does not support"))
        QTest::qFail(qPrintable(text), __FILE__, __LINE__);
}

/// What a process must not gather.
struct Holdings {
    int widgets;
    int openFiles;
    int threads;
    std::size_t heap;
};

Holdings holdings()
{
    QPixmapCache::clear();
    const auto heap = mallinfo2();
    return {QApplication::allWidgets().size(),
            QDir("/proc/self/fd").entryList(QDir::AllEntries | QDir::System).size(),
            QDir("/proc/self/task").entryList(QDir::Dirs).size(), heap.uordblks + heap.hblkhd};
}

bool isInMemoryMap(const QString& file)
{
    QFile map("/proc/self/maps");
    return map.open(QIODevice::ReadOnly) &&
           map.readAll().contains(QFileInfo(file).canonicalFilePath().toUtf8());
}

/// The application's proxy is a port where nothing listens.
void refuseAllConnections()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    QNetworkProxy::setApplicationProxy({QNetworkProxy::HttpProxy, "127.0.0.1", server.serverPort()});
}

} // namespace

class UnloadTest : public QObject
{
    Q_OBJECT

private slots:
    void nothingGrowsOverAHundredCycles();

private:
    void playCycle(devhost::HostApplication* host);
};

void UnloadTest::playCycle(devhost::HostApplication* host)
{
    devhost::AddInLibrary library(ADDIN_LIBRARY);
    QVERIFY2(library.load(), qPrintable(library.errorString()));
    QVERIFY(isInMemoryMap(ADDIN_LIBRARY));
    QVERIFY(library.connect(host));
    QVERIFY(host->runCommand("3DPH"));
    QVERIFY(host->runCommand("3DPH"));
    // Two pages with two requests each.
    s_answeredRequests = 0;
    QTRY_COMPARE(s_answeredRequests, 4);
    QVERIFY(library.disconnect());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(library.unload());
    QVERIFY(!isInMemoryMap(ADDIN_LIBRARY));
    host->journal().clear();
}

void UnloadTest::nothingGrowsOverAHundredCycles()
{
    qInstallMessageHandler(countReplies);
    refuseAllConnections();
    test::ScriptedHostView view;
    const auto host = std::make_shared<devhost::HostApplication>(view);
    devhost::addDraftingInterface(*host);

    Holdings early{};
    for (int cycle = 1;
         cycle <= (qEnvironmentVariableIntValue("N") ? qEnvironmentVariableIntValue("N") : 100) &&
         !QTest::currentTestFailed();
         ++cycle) {
        playCycle(host.get());
        if (cycle == 10)
            early = holdings();
        {
            auto h = holdings();
            fprintf(stderr, "%d %d %d %d %zu\n", cycle, h.widgets, h.openFiles, h.threads, h.heap);
        }
    }
    const Holdings late = holdings();
    QCOMPARE(late.widgets, early.widgets);
    QCOMPARE(late.openFiles, early.openFiles);
}

int main(int argc, char* argv[])
{
    mallopt(M_ARENA_MAX, 1); // mallinfo2() sees one arena
    QApplication application(argc, argv);
    UnloadTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "UnloadTest.moc"
