#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>

namespace test
{

/// Turns the event loop until @p condition() is true, looking after every event; QTRY_* looks every 50 ms,
/// which is most of the time of a test with many short waits. @return whether it became true within half a
/// minute.
template <class Condition>
bool waitUntil(Condition condition)
{
    QTimer patience;
    patience.setSingleShot(true);
    patience.start(30000);
    while (!condition() && patience.isActive()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // as a loop in exec() would
    }
    return condition();
}

} // namespace test
