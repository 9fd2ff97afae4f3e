#include "panel/SettledLayout.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <QWidget>

void settleLayout(QWidget* widget)
{
    QPointer<QWidget> level(widget);
    // A push button asks for its place only when it has been polished.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::PolishRequest);
    // What is below the widget. An event that is posted meanwhile has to wait for the next call.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    // The host's widgets are among them, which may do what they like, and the pane go with it.
    for (; level; level = level->parentWidget())
        QCoreApplication::sendPostedEvents(level, QEvent::LayoutRequest);
    // A widget that has just been shown asks by an event to be painted, which would come after the painting.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateLater);
}
