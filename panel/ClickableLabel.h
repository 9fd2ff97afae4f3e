#pragma once

#include <QLabel>

/// A label that tells of mouse presses and releases, of any button.
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
};
