#pragma once

#include <QButtonGroup>
#include <QPointer>

class QAbstractButton;

/// The buttons of the page bar, two of which share an id. Qt's look-up by id answers either of the
/// two, so the group remembers which one the user pressed.
class PageButtonGroup : public QButtonGroup
{
    Q_OBJECT

public:
    PageButtonGroup();

    /// @return the button pressed last when it has that id, else any button with it, else null.
    QAbstractButton* pressedButton(int id) const;

private slots:
    void remember(QAbstractButton* button);

private:
    QPointer<QAbstractButton> m_pressed;
};
