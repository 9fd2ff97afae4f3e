#include "panel/LinkLabel.h"

bool LinkLabel::focusNextPrevChild(bool next)
{
    if (next)
        return QLabel::focusNextPrevChild(next);
    return QFrame::focusNextPrevChild(next); // NOLINT(bugprone-parent-virtual-call): past the link
}
