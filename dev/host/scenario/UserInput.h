#pragma once

#include <QModelIndex>
#include <QPoint>
#include <QString>

class QAbstractItemView;
class QLineEdit;
class QTabBar;
class QWidget;

namespace devhost
{

/// A user's hand: mouse and key events through the window system's queue, which finds their receivers as it
/// does for real ones.
///
/// Every function returns why the user could not do it; an empty text once it is done. The mouse only reaches
/// what is seen: a widget that is hidden, disabled, covered, or outside its window is out of reach; one that
/// is scrolled away is scrolled into view by the wheel first.
namespace userInput
{

/// Clicks the middle of the widget.
QString click(QWidget* widget);
/// @param position in the widget's coordinates.
QString click(QWidget* widget, const QPoint& position);
QString clickTab(QTabBar* tabs, int index);
QString clickItem(QAbstractItemView* view, const QModelIndex& index);
QString moveMouse(QWidget* widget, const QPoint& position);

/// Types into whatever has the focus.
QString type(const QString& text);
QString press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/// Clicks the line, and types in the place of what is in it.
QString typeInto(QLineEdit* line, const QString& text);

} // namespace userInput

} // namespace devhost
