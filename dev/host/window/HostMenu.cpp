#include "dev/host/window/HostMenu.h"

#include <QActionGroup>

namespace devhost
{

namespace
{

struct Language {
    int value; // pvLanguage_e.
    const char* name;
};

constexpr Language Languages[] = {
    {2, "English"},
    {1, "German"},
    {9, "Chinese (Simplified)"},
    {8, "Chinese (Traditional)"},
    {20, "Czech"},
    {7, "French"},
    {10, "Italian"},
    {6, "Japanese"},
    {13, "Korean"},
    {5, "Polish"},
    {19, "Portuguese (Brazil)"},
    {18, "Russian"},
    {11, "Spanish"},
    {3, "Turkish"},
};

} // namespace

HostMenu::HostMenu(const HostSettings& settings, QWidget* parent)
    : QMenu("H&ost", parent), m_settings(settings)
{
    setObjectName("hostMenu");
    setToolTipsVisible(true);
    addLanguages();
    addThemes();

    QAction* webHelp = addAction("&Web Help");
    webHelp->setObjectName("webHelp");
    webHelp->setCheckable(true);
    webHelp->setChecked(settings.webHelp);
    connect(webHelp, &QAction::toggled, this, [this](bool on) { m_settings.webHelp = on; });

    addSeparator();
    QAction* reconnect = addAction("&Reconnect Add-in");
    reconnect->setObjectName("reconnect");
    reconnect->setToolTip("Disconnects the add-in and connects it anew; it keeps the theme it read first");
    connect(reconnect, &QAction::triggered, this, &HostMenu::reconnectChosen);
    addSeparator();
    QAction* gallery = addAction("&Styled Widgets…");
    gallery->setObjectName("gallery");
    gallery->setToolTip("Shows standard widgets in the add-in's dark style sheet");
    connect(gallery, &QAction::triggered, this, &HostMenu::galleryChosen);
}

void HostMenu::addLanguages()
{
    QMenu* menu = addMenu("&Language");
    auto* group = new QActionGroup(menu);
    for (const Language& language : Languages) {
        QAction* action = menu->addAction(language.name);
        action->setObjectName(QString("language%1").arg(language.value));
        action->setCheckable(true);
        action->setChecked(language.value == m_settings.language);
        group->addAction(action);
        connect(action, &QAction::triggered, this,
                [this, value = language.value] { m_settings.language = value; });
    }
}

void HostMenu::addThemes()
{
    QMenu* menu = addMenu("&Theme");
    auto* group = new QActionGroup(menu);
    for (const bool dark : {false, true}) {
        QAction* action = menu->addAction(dark ? "&Dark" : "&Light");
        action->setObjectName(dark ? "darkTheme" : "lightTheme");
        action->setCheckable(true);
        action->setChecked(dark == m_settings.darkTheme);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, dark] {
            m_settings.darkTheme = dark;
            emit darkThemeChosen(dark);
        });
    }
}

} // namespace devhost
