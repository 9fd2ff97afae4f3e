#pragma once

#include <QLabel>

/// A label that tells of mouse presses and releases, of any button. The second press of a double click is
/// none of its own: it may stand where the user has double-clicked something else.
class ClickableLabel : public QLabel
{
    Q_OBJECT

public:
    /// @param flags ignored: the label is made without window flags.
    explicit ClickableLabel(QWidget* parent, Qt::WindowFlags flags);

signals:
    void clicked();
    void release();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
};
