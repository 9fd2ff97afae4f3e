#pragma once

#include <QMessageBox>
#include <QObject>
#include <QQueue>
#include <QString>
#include <QVector>

namespace test
{

/// A message box as it stood on the screen.
struct SeenMessageBox {
    QString text;
    QString title;
    QMessageBox::Icon icon;
    Qt::WindowFlags flags; ///< as Qt completes them for a window with a frame
    QMessageBox::StandardButtons buttons;
    bool quitOnClose;
    QString styleSheet;
    bool hasParent;
    bool isModal;
};

/**
 * While it lives, every message box that opens is noted and then closed by a real mouse click on one of its
 * buttons: Ok, unless the test asked for another. The click comes through the event loop of the box, when it
 * is on the screen.
 */
class MessageBoxAnswerer : public QObject
{
    Q_OBJECT

public:
    MessageBoxAnswerer();
    ~MessageBoxAnswerer() override;

    /// The button for a later box; in the order of the calls. NoButton presses Escape.
    void enqueue(QMessageBox::StandardButton button) { m_buttons.enqueue(button); }

    /// All boxes that opened, oldest first.
    const QVector<SeenMessageBox>& boxes() const { return m_boxes; }

signals:
    /// The box is on the screen and noted; it is closed when all receivers have returned.
    void opened(QMessageBox* box);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void answer(QMessageBox* box);

    QQueue<QMessageBox::StandardButton> m_buttons;
    QVector<SeenMessageBox> m_boxes;
};

} // namespace test
