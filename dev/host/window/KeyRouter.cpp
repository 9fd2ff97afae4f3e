#include "dev/host/window/KeyRouter.h"

#include "dev/host/window/CommandLine.h"

#include <QApplication>
#include <QDockWidget>
#include <QKeyEvent>
#include <QMainWindow>

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

} // namespace

KeyRouter::KeyRouter(QMainWindow& window, CommandLine& commandLine)
    : m_window(window), m_commandLine(commandLine)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool KeyRouter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
        return false;
    auto* key = static_cast<QKeyEvent*>(event);
    const auto* widget = static_cast<QWidget*>(watched);
    const QWidget* focus = QApplication::focusWidget();
    if (focus != nullptr && focus != widget) // It had the key already, and did not want it.
        return false;
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
    // Text fields are what input methods may write into.
    if (QApplication::activeModalWidget() != nullptr || widget.testAttribute(Qt::WA_InputMethodEnabled))
        return false;
    const bool isReturn = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    const bool hasNoUseForReturn = &widget == &m_window || m_commandLine.isAncestorOf(&widget);
    return isPrintable(key) || (isReturn && hasNoUseForReturn);
}

} // namespace devhost
