#include "panel/ClickableLabel.h"

ClickableLabel::ClickableLabel(QWidget* parent, Qt::WindowFlags /*flags*/) : QLabel(parent, Qt::WindowFlags())
{
}

void ClickableLabel::mousePressEvent(QMouseEvent* /*event*/)
{
    emit clicked();
}

void ClickableLabel::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    emit release();
}
