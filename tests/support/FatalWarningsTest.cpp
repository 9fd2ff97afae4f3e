#include "tests/support/FatalWarnings.h"

#include <QTest>

#include <memory>
#include <thread>

/// Every function of this program but one has to fail; its CTest entry counts them.
class FatalWarningsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_warnings = std::make_unique<test::FatalWarnings>(); }
    void cleanup() { m_warnings.reset(); }

    void unexpectedWarningFails() { qWarning("nobody announced this"); }
    void unexpectedCriticalLineFails() { qCritical("nobody announced this"); }
    void unexpectedWarningOfAThreadFails()
    {
        std::thread([] { qWarning("nobody announced this"); }).join();
    }
    void announcedLineThatNeverComesFails() { m_warnings->expect(QtWarningMsg, "never"); }
    void announcedAndHarmlessLinesPass()
    {
        m_warnings->expect(QtWarningMsg, "one (1)");
        m_warnings->expect(QtCriticalMsg, QRegularExpression("two \\d"));
        qCritical("two 2");
        qWarning("one (1)");
        qWarning("This plugin does not support raise()");
        qDebug("data");
        QCOMPARE(m_warnings->debugLines(), QStringList("data"));
    }

private:
    std::unique_ptr<test::FatalWarnings> m_warnings;
};

QTEST_GUILESS_MAIN(FatalWarningsTest)
#include "FatalWarningsTest.moc"
