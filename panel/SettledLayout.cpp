#include "panel/SettledLayout.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

void settleLayout(QWidget* widget)
{
    // A push button asks for its place only when it has been polished.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::PolishRequest);
    // What is below the widget. An event that is posted meanwhile has to wait for the next call.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    for (; widget != nullptr; widget = widget->parentWidget())
        QCoreApplication::sendPostedEvents(widget, QEvent::LayoutRequest);
}
