#include "tests/support/FatalWarnings.h"

#include <QCoreApplication>
#include <QMutex>
#include <QMutexLocker>
#include <QTest>
#include <QThread>

#include <algorithm>
#include <array>

namespace test
{

namespace
{

/// Guards s_current and all that it holds: a thread may still write a line while the object goes.
QMutex s_mutex;
FatalWarnings* s_current = nullptr;

void fail(const QString& reason)
{
    QTest::qFail(qPrintable(reason), __FILE__, __LINE__);
}

bool isWarning(QtMsgType type)
{
    return type == QtWarningMsg || type == QtCriticalMsg;
}

} // namespace

FatalWarnings::FatalWarnings()
{
    const QMutexLocker lock(&s_mutex);
    Q_ASSERT_X(!s_current, "FatalWarnings", "one at a time");
    s_current = this;
    m_previous = qInstallMessageHandler(&FatalWarnings::handle);
}

FatalWarnings::~FatalWarnings()
{
    qInstallMessageHandler(m_previous);
    {
        const QMutexLocker lock(&s_mutex);
        s_current = nullptr;
    }
    for (const Announced& announced : qAsConst(m_announced))
        fail("Announced line never came: " + announced.pattern.pattern());
    for (const QString& text : qAsConst(m_unexpectedElsewhere))
        fail("Unexpected warning in another thread: " + text);
}

void FatalWarnings::expect(QtMsgType type, const QString& text)
{
    expect(type, QRegularExpression(QRegularExpression::escape(text)));
}

void FatalWarnings::expect(QtMsgType type, const QRegularExpression& pattern)
{
    const QRegularExpression whole(QRegularExpression::anchoredPattern(pattern.pattern()),
                                   pattern.patternOptions());
    const QMutexLocker lock(&s_mutex);
    m_announced.append({type, whole});
}

QStringList FatalWarnings::debugLines() const
{
    const QMutexLocker lock(&s_mutex);
    return m_debugLines;
}

/// What the offscreen plugin says about window systems it does not have, and what Qt says when the
/// threads of two network managers register the same type of its own at the same moment.
bool FatalWarnings::isHarmless(const QString& text)
{
    static const std::array<const char*, 3> lines{
        "This plugin does not support propagateSizeHints()",
        "This plugin does not support raise()",
        "Type conversion already registered from type QSharedPointer<QNetworkSession> to type QObject*",
    };
    return std::any_of(lines.begin(), lines.end(),
                       [&text](const char* line) { return text == QLatin1String(line); });
}

/// Called under the lock.
bool FatalWarnings::swallows(QtMsgType type, const QString& text)
{
    const auto announced =
        std::find_if(m_announced.begin(), m_announced.end(), [&](const Announced& candidate) {
            return candidate.type == type && candidate.pattern.match(text).hasMatch();
        });
    if (announced != m_announced.end()) {
        m_announced.erase(announced);
        return true;
    }
    return isWarning(type) && isHarmless(text);
}

void FatalWarnings::handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    QMutexLocker lock(&s_mutex);
    if (!s_current)
        return;
    if (type == QtDebugMsg)
        s_current->m_debugLines.append(text);
    if (s_current->swallows(type, text))
        return;
    const bool ownThread = QThread::currentThread() == QCoreApplication::instance()->thread();
    if (isWarning(type) && !ownThread)
        s_current->m_unexpectedElsewhere.append(text);
    const QtMessageHandler previous = s_current->m_previous;
    lock.unlock(); // what follows may write lines of its own

    previous(type, context, text);
    if (isWarning(type) && ownThread)
        fail("Unexpected warning: " + text);
}

} // namespace test
