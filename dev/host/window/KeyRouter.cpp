#include "dev/host/window/KeyRouter.h"

#include "dev/host/window/CommandLine.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDockWidget>
#include <QKeyEvent>
#include <QMainWindow>

#include <utility>

namespace devhost
{

namespace
{

bool isPrintable(const QKeyEvent& key)
{
    const bool isShortcut = (key.modifiers() & Qt::AltModifier) != 0 &&
                            (key.modifiers() & Qt::ControlModifier) == 0; // Together they are AltGr.
    return !isShortcut && (key.modifiers() & Qt::MetaModifier) == 0 && key.key() != Qt::Key_Space &&
           !key.text().isEmpty() && key.text().at(0).isPrint();
}

/// @return whether what is typed goes into the widget as text.
bool isTextField(const QWidget& widget)
{
    if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget))
        return view->editTriggers().testFlag(QAbstractItemView::AnyKeyPressed) &&
               view->currentIndex().flags().testFlag(Qt::ItemIsEditable);
    return widget.testAttribute(Qt::WA_InputMethodEnabled);
}

} // namespace

KeyRouter::KeyRouter(QMainWindow& window, CommandLine& commandLine)
    : m_window(window), m_commandLine(commandLine)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool KeyRouter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    // A key comes to its window first, then to a widget, then to that one's parents if it was not wanted.
    const bool isForWidget = std::exchange(m_isInNativeWindow, watched->isWindowType());
    if (!watched->isWidgetType() || !isForWidget)
        return false;
    auto* key = static_cast<QKeyEvent*>(event);
    const auto* widget = static_cast<QWidget*>(watched);
    if (!isInWindow(*widget) || !isForCommandLine(*widget, *key))
        return false;
    m_commandLine.takeKey(key);
    return true;
}

/// @return whether the widget is in the window itself, or in a pane that floats before it.
bool KeyRouter::isInWindow(const QWidget& widget) const
{
    const QWidget* window = widget.window();
    return window == &m_window ||
           (qobject_cast<const QDockWidget*>(window) != nullptr && window->parentWidget() == &m_window);
}

bool KeyRouter::isForCommandLine(const QWidget& widget, const QKeyEvent& key) const
{
    if (QApplication::activeModalWidget() != nullptr || isTextField(widget))
        return false;
    const bool isReturn = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    const bool hasNoUseForReturn = &widget == &m_window || m_commandLine.isAncestorOf(&widget);
    return isPrintable(key) || (isReturn && hasNoUseForReturn);
}

} // namespace devhost
