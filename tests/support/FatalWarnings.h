#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QtGlobal>

namespace test
{

/**
 * While it lives, the running test function fails on every warning and critical line that it did not
 * announce, and, at the end, on every announced line that never came. Lines of any thread count; known
 * harmless lines of Qt's are dropped (one list, in the .cpp). Everything else goes on to QtTest.
 *
 * Made in init() and destroyed in cleanup(), because QtTest puts its own handler in place before the first
 * test function. QTest::ignoreMessage is not consulted: announce with expect().
 */
class FatalWarnings
{
public:
    FatalWarnings();
    ~FatalWarnings();
    FatalWarnings(const FatalWarnings&) = delete;
    FatalWarnings& operator=(const FatalWarnings&) = delete;

    /// One line of @p type whose whole text matches is announced; it is swallowed when it comes.
    void expect(QtMsgType type, const QString& text);
    void expect(QtMsgType type, const QRegularExpression& pattern);

    /// Whether it is a known line of Qt's that tells of no fault.
    static bool isHarmless(const QString& text);

    /// The debug lines since construction, oldest first, from all threads.
    QStringList debugLines() const;

private:
    struct Announced {
        QtMsgType type;
        QRegularExpression pattern;
    };

    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text);
    bool swallows(QtMsgType type, const QString& text);

    QVector<Announced> m_announced;
    QStringList m_debugLines;
    QStringList m_unexpectedElsewhere; ///< from other threads; QtTest takes failures in its own thread only
    QtMessageHandler m_previous = nullptr;
};

} // namespace test
