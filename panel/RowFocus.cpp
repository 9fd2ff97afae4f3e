#include "panel/RowFocus.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QScrollBar>

RowFocus::RowFocus(QWidget* row) : QObject(row), m_row(row)
{
    for (QWidget* control : row->findChildren<QWidget*>())
        if (control->focusPolicy() != Qt::NoFocus)
            control->installEventFilter(this);
}

bool RowFocus::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
        show();
    return QObject::eventFilter(watched, event);
}

void RowFocus::show()
{
    for (QWidget* ancestor = m_row->parentWidget(); ancestor != nullptr;
         ancestor = ancestor->parentWidget()) {
        const auto* view = qobject_cast<QAbstractItemView*>(ancestor);
        if (view == nullptr)
            continue;
        const int top = m_row->mapTo(view->viewport(), QPoint()).y();
        const int below = top + m_row->height() - view->viewport()->height();
        QScrollBar* bar = view->verticalScrollBar();
        bar->setValue(bar->value() + qMin(top, qMax(0, below))); // Its top, where it is higher than the view.
    }
}
