#include "tests/support/NetworkWatch.h"

#include <QChildEvent>
#include <QCoreApplication>
#include <QNetworkAccessManager>
#include <QNetworkReply>

#include <algorithm>

namespace test
{

NetworkWatch::NetworkWatch()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool NetworkWatch::isIdle() const
{
    return m_seen.count(nullptr) == m_seen.size();
}

bool NetworkWatch::isHalfRead() const
{
    return std::any_of(m_seen.begin(), m_seen.end(), [](const QPointer<QObject>& seen) {
        const auto* reply = qobject_cast<QNetworkReply*>(seen);
        return reply != nullptr && reply->bytesAvailable() > 0;
    });
}

bool NetworkWatch::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ChildAdded && qobject_cast<QNetworkAccessManager*>(watched) != nullptr)
        m_seen << watched << static_cast<QChildEvent*>(event)->child();
    return QObject::eventFilter(watched, event);
}

} // namespace test
