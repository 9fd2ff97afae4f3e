#include "dev/host/window/HostMenuBar.h"

#include "dev/host/window/CommandIcons.h"
#include "dev/host/window/CommandShortcuts.h"

namespace devhost
{

HostMenuBar::HostMenuBar(QWidget* parent) : QMenuBar(parent)
{
    setObjectName("menuBar");
}

void HostMenuBar::showMenus(const HostApplication& application)
{
    // One of the old menus may be open, with the choice that led here on the stack.
    for (QMenu* menu : qAsConst(m_modelMenus)) {
        removeAction(menu->menuAction());
        menu->setObjectName(QString());
        menu->deleteLater();
    }
    m_modelMenus.clear();

    QAction* firstOfTheWindow = actions().value(0);
    for (const auto& item : application.menus().objects()) {
        QMenu* menu = createMenu(application, *item);
        insertMenu(firstOfTheWindow, menu);
        m_modelMenus.append(menu);
    }
}

QMenu* HostMenuBar::createMenu(const HostApplication& application, const HostMenuItem& item)
{
    auto* menu = new QMenu(item.properties().caption, this);
    menu->setObjectName(item.id());
    menu->setToolTipsVisible(true);
    for (const auto& entry : item.entries().objects())
        addEntry(*menu, application, *entry);
    return menu;
}

void HostMenuBar::addEntry(QMenu& menu, const HostApplication& application, const HostMenuItem& entry)
{
    const HostMenuItem::Properties& properties = entry.properties();
    if (properties.caption.isEmpty()) {
        menu.addSeparator();
        return;
    }
    QAction* action = menu.addAction(properties.caption);
    if (properties.userCommandID.isEmpty()) {
        action->setProperty(HostCommandProperty, properties.command);
        action->setShortcut(commandShortcut(properties.command));
        action->setIcon(commandIcon(properties.command, palette().color(QPalette::WindowText)));
        connect(action, &QAction::triggered, this,
                [this, properties] { emit commandChosen(properties.command); });
        return;
    }
    action->setObjectName(properties.userCommandID);
    if (const auto userCommand = application.findUserCommand(properties.userCommandID)) {
        action->setIcon(QIcon(userCommand->properties().smallIcon));
        action->setToolTip(userCommand->properties().description);
        action->setStatusTip(userCommand->properties().description);
    }
    connect(action, &QAction::triggered, this,
            [this, properties] { emit userCommandChosen(properties.userCommandID); });
}

} // namespace devhost
