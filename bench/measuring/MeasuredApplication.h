#pragma once

#include <QApplication>
#include <QNetworkAccessManager>
#include <QPointer>
#include <QStringList>
#include <QVector>

namespace bench
{

/// An application that sees every event of the interface thread: it times them, counts network managers and
/// replies, and closes message boxes, since nobody else would.
class MeasuredApplication final : public QApplication
{
public:
    /// The longest events since the last reset, each with what it delivered, in nanoseconds.
    struct LongestEvent {
        qint64 wallTime = 0;
        qint64 threadTime = 0;
        QByteArray name; ///< of the one that took most processor time: receiver's class and event's type
    };

    MeasuredApplication(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;

    const LongestEvent& longestEvent() const { return m_longest; }
    void resetLongestEvent() { m_longest = {}; }

    /// @return how many network managers that sent something are alive, and how many replies.
    int managers() const;
    int replies() const;
    /// @return how many managers sent something so far (the add-in makes one for each request), and how many
    /// of their replies have finished.
    int requests() const { return m_requests; }
    int finishedRequests() const { return m_finishedRequests; }
    /// @return the manager that was the last to begin; null when there is none, or it is gone.
    QNetworkAccessManager* newestManager() const
    {
        return m_managers.isEmpty() ? nullptr : m_managers.constLast();
    }

    /// @return the texts of the message boxes so far.
    const QStringList& boxTexts() const { return m_boxTexts; }

private:
    bool notifyTimed(QObject* receiver, QEvent* event);
    void look(QObject* receiver, QEvent* event);

    void noteSender(QNetworkAccessManager* manager);

    bool m_isTiming = false;
    LongestEvent m_longest;
    QVector<QPointer<QNetworkAccessManager>> m_managers; ///< with those that are gone since the last one came
    int m_requests = 0;
    int m_finishedRequests = 0;
    QStringList m_boxTexts;
};

} // namespace bench
