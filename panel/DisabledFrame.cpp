#include "panel/DisabledFrame.h"

#include <QApplication>
#include <QWidget>

DisabledFrame::DisabledFrame(QWidget* frame) : m_frame(frame), m_focused(QApplication::focusWidget())
{
    QList<QWidget*> widgets = frame->findChildren<QWidget*>();
    widgets.append(frame);
    for (QWidget* widget : qAsConst(widgets))
        if (widget->updatesEnabled())
            m_unpainted.append(widget);
    setPainted(false);
    m_frame->setEnabled(false);
}

DisabledFrame::~DisabledFrame()
{
    m_frame->setEnabled(true);
    setPainted(true);
    if (m_focused != nullptr && m_frame->isAncestorOf(m_focused))
        m_focused->setFocus();
}

/// QWidget::setUpdatesEnabled() would have all of it painted in the end.
void DisabledFrame::setPainted(bool painted)
{
    for (QWidget* widget : qAsConst(m_unpainted))
        widget->setAttribute(Qt::WA_UpdatesDisabled, !painted);
}
