#include "dev/host/window/Ribbon.h"

#include "dev/host/window/CommandIcons.h"
#include "dev/host/window/CommandShortcuts.h"
#include "dev/host/window/RibbonPage.h"

#include <QGridLayout>
#include <QLabel>
#include <QTabBar>
#include <QToolButton>
#include <QVariant>

#include <algorithm>

namespace devhost
{

namespace
{

// Of the buttons of a panel the first ones are large, and so are those of add-ins; the others stand in
// columns.
constexpr int LargeButtons = 4;
constexpr int SmallButtonsPerColumn = 3;
constexpr int Rows = SmallButtonsPerColumn;
constexpr int PageHeight = 104; // Pixels.

void makeLarge(QToolButton& button)
{
    button.setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button.setIconSize({32, 32});
    button.setMinimumWidth(std::max(58, button.sizeHint().width()));
    button.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
}

void makeSmall(QToolButton& button)
{
    button.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button.setIconSize({16, 16});
    button.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

} // namespace

Ribbon::Ribbon(QWidget* parent) : QTabWidget(parent)
{
    setObjectName("ribbon");
    setDocumentMode(true);
    tabBar()->setExpanding(false);
    tabBar()->setDrawBase(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize Ribbon::sizeHint() const
{
    return {600, tabBar()->sizeHint().height() + PageHeight};
}

QSize Ribbon::minimumSizeHint() const
{
    return {200, sizeHint().height()};
}

void Ribbon::showWorkspace(const HostApplication& application, const HostWorkspace& workspace)
{
    const QString current = currentWidget() != nullptr ? currentWidget()->objectName() : QString();
    while (count() > 0) {
        QWidget* page = widget(0);
        removeTab(0);
        page->setParent(nullptr);
        page->deleteLater(); // A button of it may be on the stack.
    }
    for (const auto& tab : workspace.tabs().objects()) {
        const int index = addTab(createPage(application, *tab), tab->name());
        if (tab->id() == current)
            setCurrentIndex(index);
    }
}

QWidget* Ribbon::createPage(const HostApplication& application, const HostRibbonTab& tab)
{
    auto* content = new QWidget;
    auto* layout = new QHBoxLayout(content);
    layout->setContentsMargins(4, 2, 4, 0);
    layout->setSpacing(0);
    for (const auto& panel : tab.panels().objects())
        layout->addWidget(createPanel(application, *panel));
    layout->addStretch(1);

    auto* page = new RibbonPage(content);
    page->setObjectName(tab.id());
    return page;
}

QWidget* Ribbon::createPanel(const HostApplication& application, const HostRibbonPanel& panel)
{
    auto* frame = new QWidget;
    frame->setObjectName(panel.id());
    auto* grid = new QGridLayout;
    grid->setContentsMargins(6, 0, 6, 0);
    grid->setSpacing(1);
    const auto buttons = panel.row() ? panel.row()->buttons().objects()
                                     : std::vector<std::shared_ptr<HostRibbonCommandButton>>();
    int column = 0;
    int row = 0;
    for (const auto& button : buttons) {
        QToolButton* widget = createButton(application, *button);
        const bool large = column < LargeButtons || !button->properties().userCommandID.isEmpty();
        if (large) {
            column += row > 0 ? 1 : 0;
            row = 0;
            makeLarge(*widget);
            grid->addWidget(widget, 0, column++, Rows, 1);
            continue;
        }
        makeSmall(*widget);
        grid->addWidget(widget, row, column, Qt::AlignLeft);
        row = (row + 1) % SmallButtonsPerColumn;
        column += row == 0 ? 1 : 0;
    }

    auto* caption = new QLabel(panel.name());
    caption->setAlignment(Qt::AlignCenter);
    caption->setForegroundRole(QPalette::PlaceholderText);
    auto* line = new QFrame;
    line->setFrameShape(QFrame::VLine);
    line->setForegroundRole(QPalette::Mid);
    line->setFrameShadow(QFrame::Plain);

    auto* layout = new QGridLayout(frame);
    layout->setContentsMargins(0, 0, 0, 2);
    layout->setSpacing(0);
    layout->addLayout(grid, 0, 0);
    layout->addWidget(caption, 1, 0);
    layout->addWidget(line, 0, 1, 2, 1);
    layout->setRowStretch(0, 1);
    return frame;
}

QToolButton* Ribbon::createButton(const HostApplication& application, const HostRibbonCommandButton& button)
{
    const HostRibbonCommandButton::Properties& properties = button.properties();
    auto* widget = new QToolButton;
    widget->setAutoRaise(true);
    widget->setText(properties.caption);
    widget->setToolTip(properties.caption);
    widget->setFocusPolicy(Qt::TabFocus);
    if (properties.userCommandID.isEmpty()) {
        widget->setObjectName(properties.command);
        widget->setProperty(HostCommandProperty, properties.command);
        widget->setIcon(commandIcon(properties.command, palette().color(QPalette::WindowText)));
        connect(widget, &QToolButton::clicked, this,
                [this, command = properties.command] { emit commandChosen(command); });
        return widget;
    }
    widget->setObjectName(properties.userCommandID);
    if (const auto userCommand = application.findUserCommand(properties.userCommandID)) {
        widget->setIcon(QIcon(userCommand->properties().largeIcon));
        widget->setToolTip(userCommand->properties().description);
    }
    connect(widget, &QToolButton::clicked, this,
            [this, id = properties.userCommandID] { emit userCommandChosen(id); });
    return widget;
}

} // namespace devhost
