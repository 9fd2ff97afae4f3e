#include "dev/host/model/AddInLibrary.h"
#include "dev/host/model/DraftingInterface.h"
#include "dev/host/model/HostApplication.h"
#include "tests/host/ScriptedHostView.h"
#include "tests/support/FatalWarnings.h"

#include <QApplication>
#include <QDir>
#include <QNetworkProxy>
#include <QPixmapCache>
#include <QTcpSocket>
#include <QTest>

#include <limits>

#include <malloc.h>

namespace
{

int s_answeredRequests = 0;

/// Counts the replies that the add-in reports; any warning fails the test. Keeps no text: the heap is
/// watched.
void countReplies(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    if (type == QtDebugMsg)
        ++s_answeredRequests;
    else if (!test::FatalWarnings::isHarmless(text))
        QTest::qFail(qPrintable(text), __FILE__, __LINE__);
}

/// What a process must not gather. Each is the least of several looks: Qt puts some things off.
struct Holdings {
    int widgets = std::numeric_limits<int>::max();
    int openFiles = std::numeric_limits<int>::max();
    qint64 heapBytes = std::numeric_limits<qint64>::max();

    void look()
    {
        const auto heap = mallinfo2();
        widgets = std::min(widgets, QApplication::allWidgets().size());
        openFiles = std::min(openFiles, static_cast<int>(QDir("/proc/self/fd").count()));
        heapBytes = std::min(heapBytes, static_cast<qint64>(heap.uordblks + heap.hblkhd));
    }
};

/// While it lives, the application's proxy is a port that refuses connections.
class RefusingProxy
{
public:
    RefusingProxy()
    {
        m_socket.bind(QHostAddress::LocalHost); // without listening; keeps the port from others
        QNetworkProxy::setApplicationProxy({QNetworkProxy::HttpProxy, "127.0.0.1", m_socket.localPort()});
    }

private:
    QTcpSocket m_socket;
};

} // namespace

/// The library again and again in one process, as its host loads and unloads it. Watches the heap through
/// glibc, which its CTest entry sets to one arena without per-thread caches.
class UnloadTest : public QObject
{
    Q_OBJECT

private slots:
    void nothingGrowsOverAHundredCycles();

private:
    /// @param early whether the host disconnects while the requests of both pages are still under way.
    void playCycle(devhost::HostApplication* host, bool early);
};

void UnloadTest::playCycle(devhost::HostApplication* host, bool early)
{
    devhost::AddInLibrary library(ADDIN_LIBRARY);
    QVERIFY2(library.load(), qPrintable(library.errorString()));
    QVERIFY(library.isMapped());
    s_answeredRequests = 0;
    QVERIFY(library.connect(host));
    QVERIFY(host->runCommand("3DPH"));
    QVERIFY(host->runCommand("3DPH"));
    if (early)
        QCoreApplication::processEvents();
    else
        QTRY_COMPARE(s_answeredRequests, 4); // two of each page
    QVERIFY(library.disconnect());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(library.unload());
    host->journal().clear();
}

void UnloadTest::nothingGrowsOverAHundredCycles()
{
    qInstallMessageHandler(countReplies);
    const RefusingProxy proxy;
    QPixmapCache::setCacheLimit(0); // else it keeps, up to its limit, pictures of buttons that are gone
    test::ScriptedHostView view;
    const auto host = std::make_shared<devhost::HostApplication>(view);
    devhost::addDraftingInterface(*host);

    Holdings early;
    Holdings late;
    for (int cycle = 1; cycle <= 100 && !QTest::currentTestFailed(); ++cycle) {
        playCycle(host.get(), cycle % 2 == 0);
        if (cycle > 10 && cycle <= 20)
            early.look();
        else if (cycle > 90)
            late.look();
    }
    QCOMPARE(late.widgets, early.widgets);
    QCOMPARE(late.openFiles, early.openFiles);
    // Qt's own tables move by up to 4 KB either way; one object kept per cycle is more.
    const qint64 growth = late.heapBytes - early.heapBytes;
    QVERIFY2(growth < 8000, qPrintable(QString("the heap has grown by %1 bytes in 80 cycles").arg(growth)));
}

QTEST_MAIN(UnloadTest)
#include "UnloadTest.moc"
