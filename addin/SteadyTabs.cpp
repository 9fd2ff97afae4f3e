#include "addin/SteadyTabs.h"

#include <QEvent>
#include <QTabWidget>

SteadyTabs::SteadyTabs(QTabWidget* tabs) : QObject(tabs), m_tabs(tabs)
{
    tabs->installEventFilter(this);
}

bool SteadyTabs::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::LayoutRequest)
        return QObject::eventFilter(watched, event);
    const QSize sizeHint = m_tabs->sizeHint();
    const QSize minimumSizeHint = m_tabs->minimumSizeHint();
    if (sizeHint == m_sizeHint && minimumSizeHint == m_minimumSizeHint)
        return true;
    m_sizeHint = sizeHint;
    m_minimumSizeHint = minimumSizeHint;
    return false;
}
