#include "panel/PageButtonGroup.h"

#include <QAbstractButton>

PageButtonGroup::PageButtonGroup()
{
    connect(this, SIGNAL(buttonPressed(QAbstractButton*)), this, SLOT(remember(QAbstractButton*)));
}

QAbstractButton* PageButtonGroup::pressedButton(int id) const
{
    return !m_pressed.isNull() && this->id(m_pressed) == id ? m_pressed.data() : button(id);
}

void PageButtonGroup::remember(QAbstractButton* button)
{
    m_pressed = button;
}
