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
    : QMenu("Ho&st", parent), m_settings(settings)
{
    setObjectName("hostMenu");
    setToolTipsVisible(true);
    addLanguages();
    addThemes();

    QAction* webHelp = addAction("&Web Help");
    webHelp->setObjectName("webHelp");
    webHelp->setCheckable(true);
    webHelp->setChecked(settings.webHelp);
    webHelp->setToolTip("Takes effect at the add-in's next connect");
    connect(webHelp, &QAction::toggled, this, [this](bool on) {
        m_settings.webHelp = on;
        emit nextConnectChosen(QString("Help opens %1 once the add-in connects anew.")
                                   .arg(on ? "on the web" : "from the compiled file"));
    });

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
    QAction* unsaid = addAction("What the Add-in Leaves &Unsaid…");
    unsaid->setObjectName("unsaid");
    connect(unsaid, &QAction::triggered, this, &HostMenu::unsaidChosen);
}

void HostMenu::addLanguages()
{
    QMenu* menu = addMenu("&Language");
    menu->addSection("From the Next Connect");
    auto* group = new QActionGroup(menu);
    for (const Language& language : Languages) {
        QAction* action = menu->addAction(language.name);
        action->setObjectName(QString("language%1").arg(language.value));
        action->setCheckable(true);
        action->setChecked(language.value == m_settings.language);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, language] {
            m_settings.language = language.value;
            emit nextConnectChosen(QString("The add-in speaks %1 once it connects anew.").arg(language.name));
        });
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
            emit nextConnectChosen(
                "The add-in learns of the theme once it connects anew; its icons and message "
                "boxes keep the one that it read first.");
        });
    }
}

} // namespace devhost
