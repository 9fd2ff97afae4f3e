#include "dev/host/scenario/UserInput.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QScrollBar>
#include <QTabBar>
#include <QWheelEvent>
#include <QWindow>
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>

namespace devhost::userInput
{

namespace
{

QString describe(const QWidget& widget)
{
    const QString name = widget.objectName();
    const QString kind = widget.metaObject()->className();
    return name.isEmpty() ? kind : QString("%1 \"%2\"").arg(kind, name);
}

/// @return the window of the system that gets the mouse events of the widget.
QWindow* nativeWindow(const QWidget& widget)
{
    const QWidget* native = widget.windowHandle() != nullptr ? &widget : widget.nativeParentWidget();
    return native != nullptr ? native->windowHandle() : nullptr;
}

/// @return whether there is a screen at that point. The offscreen platform has a screen in name only, which
/// is smaller than the windows on it.
bool isOnScreen(const QPoint& global)
{
    return QGuiApplication::platformName() == "offscreen" || QGuiApplication::screenAt(global) != nullptr;
}

/// @return the window that keeps the mouse from the widget's; null when none does.
const QWidget* windowInFront(const QWidget& widget)
{
    for (const QWidget* front : {QApplication::activePopupWidget(), QApplication::activeModalWidget()})
        if (front != nullptr)
            return front == widget.window() ? nullptr : front;
    return nullptr;
}

QString obstacle(const QWidget& widget, const QPoint& position)
{
    if (!widget.isVisible())
        return describe(widget) + " is hidden";
    if (!widget.isEnabled())
        return describe(widget) + " is disabled";
    if (const QWidget* front = windowInFront(widget))
        return describe(widget) + " is behind " + describe(*front);
    const QWidget* window = widget.window();
    const QPoint inWindow = widget.mapTo(window, position);
    if (nativeWindow(widget) == nullptr || !window->rect().contains(inWindow) ||
        !isOnScreen(widget.mapToGlobal(position)))
        return describe(widget) + " is outside of what is seen";
    const QWidget* reached = window->childAt(inWindow);
    if (reached == nullptr)
        reached = window;
    if (reached != &widget && !widget.isAncestorOf(reached))
        return describe(widget) + " is covered by " + describe(*reached);
    return QString();
}

void turnWheel(QWidget& viewport, int notches)
{
    constexpr int notch = 120; // Eighths of a degree.
    const QPointF middle = viewport.rect().center();
    QWheelEvent event(middle, viewport.mapToGlobal(middle.toPoint()), QPoint(), QPoint(0, notches * notch),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&viewport, &event);
}

/// Turns the wheel over the area until the point is in the middle of it, or as near as it gets.
void scrollTo(QAbstractScrollArea& area, const QWidget& widget, const QPoint& position)
{
    QWidget& viewport = *area.viewport();
    const QScrollBar& bar = *area.verticalScrollBar();
    const auto distance = [&] { return widget.mapTo(&viewport, position).y() - viewport.height() / 2; };
    const int direction = distance() > 0 ? -1 : 1;
    for (int before = bar.value() - 1; before != bar.value() && distance() * direction < 0;) {
        before = bar.value();
        turnWheel(viewport, direction);
    }
}

void scrollIntoView(const QWidget& widget, const QPoint& position)
{
    for (QWidget* ancestor = widget.parentWidget(); ancestor != nullptr;
         ancestor = ancestor->parentWidget()) {
        auto* area = qobject_cast<QAbstractScrollArea*>(ancestor);
        if (area == nullptr || !area->viewport()->isAncestorOf(&widget))
            continue;
        if (!area->viewport()->rect().contains(widget.mapTo(area->viewport(), position)))
            scrollTo(*area, widget, position);
    }
}

/// Leads the mouse to the point. @return why it cannot get there.
QString reach(QWidget* widget, const QPoint& position)
{
    if (widget == nullptr)
        return "it is not there";
    if (widget->isVisible())
        scrollIntoView(*widget, position);
    QString problem = obstacle(*widget, position);
    if (!problem.isEmpty())
        return problem;
    if (!widget->isActiveWindow() && QApplication::activePopupWidget() == nullptr)
        widget->activateWindow(); // As a window manager does with what is clicked.
    return QString();
}

/// @return the point where it gets its mouse events.
QPoint nativePosition(const QWidget& widget, const QPoint& position)
{
    const QWidget* native = widget.windowHandle() != nullptr ? &widget : widget.nativeParentWidget();
    return widget.mapTo(native, position);
}

} // namespace

QString click(QWidget* widget)
{
    return click(widget, widget != nullptr ? widget->rect().center() : QPoint());
}

QString click(QWidget* widget, const QPoint& position)
{
    const QPointer<QWidget> guard(widget);
    QString problem = moveMouse(widget, position);
    if (!problem.isEmpty())
        return problem;
    if (guard.isNull())
        return "it went away under the mouse";
    QTest::mouseClick(nativeWindow(*widget), Qt::LeftButton, Qt::NoModifier,
                      nativePosition(*widget, position));
    return QString();
}

QString clickTab(QTabBar* tabs, int index)
{
    return click(tabs, tabs != nullptr ? tabs->tabRect(index).center() : QPoint());
}

QString clickItem(QAbstractItemView* view, const QModelIndex& index)
{
    if (view == nullptr || !index.isValid())
        return "it is not there";
    return click(view->viewport(), view->visualRect(index).center());
}

QString moveMouse(QWidget* widget, const QPoint& position)
{
    QString problem = reach(widget, position);
    if (problem.isEmpty())
        QTest::mouseMove(nativeWindow(*widget), nativePosition(*widget, position));
    return problem;
}

QString press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QWindow* window = QGuiApplication::focusWindow();
    if (window == nullptr)
        return "no window has the keyboard";
    QTest::keyClick(window, key, modifiers);
    return QString();
}

QString type(const QString& text)
{
    for (const QChar character : text) {
        QWindow* window = QGuiApplication::focusWindow();
        if (window == nullptr)
            return "no window has the keyboard";
        // The keys of Latin characters have their capital's number.
        QTest::sendKeyEvent(QTest::Click, window, Qt::Key(character.toUpper().unicode()), QString(character),
                            Qt::NoModifier);
    }
    return QString();
}

QString typeInto(QLineEdit* line, const QString& text)
{
    const QPointer<QLineEdit> guard(line);
    QString problem = click(line);
    if (!problem.isEmpty())
        return problem;
    if (guard.isNull())
        return "it went away under the mouse";
    if (!line->hasFocus())
        return describe(*line) + " does not take the focus";
    const QString noKeyboard = press(Qt::Key_A, Qt::ControlModifier);
    return noKeyboard.isEmpty() ? type(text) : noKeyboard;
}

} // namespace devhost::userInput
