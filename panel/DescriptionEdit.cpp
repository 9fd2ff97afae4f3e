#include "panel/DescriptionEdit.h"

#include <QMouseEvent>

void DescriptionEdit::mousePressEvent(QMouseEvent* event)
{
    // A press on selected text is what a drag begins with; with Shift it changes the selection instead.
    if (event->button() == Qt::LeftButton && !event->modifiers().testFlag(Qt::ShiftModifier)) {
        QTextCursor cursor = textCursor();
        cursor.clearSelection();
        setTextCursor(cursor);
    }
    QTextEdit::mousePressEvent(event);
}

void DescriptionEdit::showEvent(QShowEvent* /*event*/)
{
}
