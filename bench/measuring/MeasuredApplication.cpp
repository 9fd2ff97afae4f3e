#include "bench/measuring/MeasuredApplication.h"

#include "bench/measuring/ProcessFigures.h"

#include <QChildEvent>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QNetworkReply>
#include <QScopedValueRollback>
#include <QThread>

#include <algorithm>

namespace bench
{

MeasuredApplication::MeasuredApplication(int& argc, char** argv) : QApplication(argc, argv)
{
}

bool MeasuredApplication::notify(QObject* receiver, QEvent* event)
{
    if (QThread::currentThread() != thread())
        return QApplication::notify(receiver, event);
    look(receiver, event);
    return m_isTiming ? QApplication::notify(receiver, event) : notifyTimed(receiver, event);
}

bool MeasuredApplication::notifyTimed(QObject* receiver, QEvent* event)
{
    const QScopedValueRollback<bool> timing(m_isTiming, true);
    const char* const receiverClass = receiver->metaObject()->className();
    const int type = event->type();
    QElapsedTimer clock;
    clock.start();
    const qint64 before = threadTime();
    const bool result = QApplication::notify(receiver, event);
    const qint64 used = threadTime() - before;
    if (used > m_longest.threadTime) {
        m_longest.threadTime = used;
        m_longest.name = QByteArray(receiverClass) + ' ' + QByteArray::number(type);
    }
    m_longest.wallTime = std::max(m_longest.wallTime, clock.nsecsElapsed());
    return result;
}

void MeasuredApplication::look(QObject* receiver, QEvent* event)
{
    if (event->type() == QEvent::ChildAdded) {
        // A manager that gets its first child, the reply or what it needs for one, is about to send.
        if (auto* manager = qobject_cast<QNetworkAccessManager*>(receiver))
            noteSender(manager);
    } else if (event->type() == QEvent::Show) {
        if (auto* box = qobject_cast<QMessageBox*>(receiver)) {
            m_boxTexts.append(box->text());
            QMetaObject::invokeMethod(box, "accept", Qt::QueuedConnection);
        }
    }
}

void MeasuredApplication::noteSender(QNetworkAccessManager* manager)
{
    if (m_managers.contains(manager))
        return;
    m_managers.removeAll(nullptr);
    m_managers.append(manager);
    ++m_requests;
    connect(manager, &QNetworkAccessManager::finished, this, [this] { ++m_finishedRequests; });
}

int MeasuredApplication::managers() const
{
    return m_managers.size() - m_managers.count(nullptr);
}

int MeasuredApplication::replies() const
{
    int all = 0;
    for (const auto& manager : m_managers)
        if (manager)
            all += manager->findChildren<QNetworkReply*>().size();
    return all;
}

} // namespace bench
