#include "panel/LinkLabel.h"

#include <QMouseEvent>

bool LinkLabel::focusNextPrevChild(bool next)
{
    if (next)
        return QLabel::focusNextPrevChild(next);
    return QFrame::focusNextPrevChild(next); // NOLINT(bugprone-parent-virtual-call): past the link
}

void LinkLabel::mousePressEvent(QMouseEvent* event)
{
    // A press on selected text is what a drag begins with.
    if (hasSelectedText() && !event->modifiers().testFlag(Qt::ShiftModifier))
        setSelection(selectionStart(), 0);
    QLabel::mousePressEvent(event);
}
