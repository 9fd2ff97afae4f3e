#include "panel/PromptView.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QHeaderView>
#include <QTimerEvent>

PromptView::PromptView(QAbstractItemView* view) : QObject(view), m_view(view)
{
    for (const QHeaderView* header : view->findChildren<QHeaderView*>())
        connect(header, SIGNAL(sectionResized(int, int, int)), this, SLOT(followLater()));
}

void PromptView::followLater()
{
    if (m_follows)
        return;
    m_follows = true;
    QMetaObject::invokeMethod(this, "follow", Qt::QueuedConnection); // the view is being laid out
}

void PromptView::follow()
{
    m_follows = true; // whatever the headers do meanwhile
    // A scroll bar may come or go with the first round, and give the headers another width.
    for (int round = 0; round < 2; ++round)
        ringTimers();
    m_follows = false;
}

/// The view's own timers are private. They are stopped by being rung.
void PromptView::ringTimers()
{
    for (const auto& timer : QAbstractEventDispatcher::instance()->registeredTimers(m_view)) {
        if (timer.interval != 0)
            continue;
        QTimerEvent event(timer.timerId);
        QCoreApplication::sendEvent(m_view, &event);
    }
}
