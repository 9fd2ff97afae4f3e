#include "tests/support/MessageBoxAnswerer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QTest>

namespace test
{

namespace
{

SeenMessageBox describe(const QMessageBox& box)
{
    return {box.text(),        box.windowTitle(),       box.icon(),
            box.windowFlags(), box.standardButtons(),   box.testAttribute(Qt::WA_QuitOnClose),
            box.styleSheet(),  box.parent() != nullptr, box.isModal()};
}

} // namespace

MessageBoxAnswerer::MessageBoxAnswerer()
{
    QApplication::instance()->installEventFilter(this);
}

MessageBoxAnswerer::~MessageBoxAnswerer() = default;

bool MessageBoxAnswerer::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        if (auto* box = qobject_cast<QMessageBox*>(watched)) {
            // The box is still opening; its own event loop comes back here.
            const auto answerThis = [this, guard = QPointer<QMessageBox>(box)] {
                if (guard)
                    answer(guard);
            };
            QMetaObject::invokeMethod(this, answerThis, Qt::QueuedConnection);
        }
    }
    return QObject::eventFilter(watched, event);
}

void MessageBoxAnswerer::answer(QMessageBox* box)
{
    const QPointer<QMessageBox> guard(box);
    m_boxes.append(describe(*box));
    const auto wanted = m_buttons.isEmpty() ? QMessageBox::Ok : m_buttons.dequeue();
    emit opened(box);
    if (guard) {
        if (QAbstractButton* button = box->button(wanted))
            QTest::mouseClick(button, Qt::LeftButton);
        else
            QTest::keyClick(box, Qt::Key_Escape);
    }
    if (guard && guard->isVisible()) {
        QTest::qFail(qPrintable("The message box does not close: " + guard->text()), __FILE__, __LINE__);
        guard->reject();
    }
}

} // namespace test
