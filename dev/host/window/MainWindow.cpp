#include "dev/host/window/MainWindow.h"

#include "dev/host/model/DraftingInterface.h"
#include "dev/host/window/CommandDock.h"
#include "dev/host/window/CommandIcons.h"
#include "dev/host/window/CommandLine.h"
#include "dev/host/window/CommandShortcuts.h"
#include "dev/host/window/DrawingArea.h"
#include "dev/host/window/DrawingCommands.h"
#include "dev/host/window/HostMenu.h"
#include "dev/host/window/HostMenuBar.h"
#include "dev/host/window/JournalPanel.h"
#include "dev/host/window/KeyRouter.h"
#include "dev/host/window/ReconnectBar.h"
#include "dev/host/window/Ribbon.h"
#include "dev/host/window/SheetsSetAside.h"
#include "dev/host/window/TextDialog.h"
#include "dev/host/window/UnitButton.h"
#include "dev/host/window/WidgetGallery.h"
#include "dev/host/window/WindowTheme.h"
#include "dev/host/window/WindowView.h"

#include <QCloseEvent>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QStatusBar>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

static void initializeResources()
{
    Q_INIT_RESOURCE(devhost_icons); // Has to be called outside of any namespace.
    Q_INIT_RESOURCE(devhost_texts);
}

namespace devhost
{

namespace
{

constexpr QSize InitialSize(1280, 800);
constexpr int CommandLineHeight = 110;
const char AddInStyleSheet[] = ":/3DPH/Resource/PV3DPartHarborDarkMode.qss"; // In the add-in's bundle.

} // namespace

MainWindow::MainWindow(const HostSettings& settings, QWidget* parent)
    : QMainWindow(parent),
      m_drawingArea(new DrawingArea),
      m_commandLine(new CommandLine),
      m_view(std::make_unique<WindowView>(*this, *m_drawingArea, *m_commandLine)),
      m_host(std::make_shared<HostApplication>(*m_view)),
      m_drawingCommands(std::make_unique<DrawingCommands>(*m_host, *m_drawingArea, *m_commandLine, *this)),
      m_keyRouter(std::make_unique<KeyRouter>(*this, *m_commandLine)),
      m_menuBar(new HostMenuBar),
      m_hostMenu(new HostMenu(settings, m_menuBar)),
      m_ribbon(new Ribbon),
      m_reconnectBar(new ReconnectBar),
      m_documentTabs(new QTabBar),
      m_coordinates(new QLabel),
      m_gridButton(new QToolButton),
      m_unitButton(new UnitButton)
{
    initializeResources();
    setObjectName("mainWindow");
    resize(InitialSize);
    m_host->settings() = settings;
    addDraftingInterface(*m_host);
    createLayout();
    createStatusBar();
    createCommands();
    connectParts();
    applyTheme(settings.darkTheme);
    m_host->newDocument();
    m_drawingArea->setFocusProxy(m_commandLine->input()); // Who clicks into the drawing types commands.
    m_commandLine->input()->setFocus();
}

MainWindow::~MainWindow()
{
    m_view->cancelPrompt();
    disconnect(&m_host->changes(), nullptr, this, nullptr);
    m_drawingCommands.reset();
    m_host.reset(); // Panes end before the window's own widgets.
}

PlacementPrompt* MainWindow::currentPrompt() const
{
    return m_view->currentPrompt();
}

const HostSettings& MainWindow::chosenSettings() const
{
    return m_hostMenu->settings();
}

void MainWindow::createLayout()
{
    m_menuBar->addMenu(m_hostMenu);
    setMenuBar(m_menuBar);

    auto* ribbonBar = new QToolBar("Ribbon");
    ribbonBar->setObjectName("ribbonBar");
    ribbonBar->setMovable(false);
    ribbonBar->setContextMenuPolicy(Qt::PreventContextMenu);
    ribbonBar->addWidget(m_ribbon);
    addToolBar(ribbonBar);

    m_documentTabs->setObjectName("documentTabs");
    m_documentTabs->setDocumentMode(true);
    m_documentTabs->setExpanding(false);
    auto* centre = new QWidget;
    auto* layout = new QVBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_reconnectBar);
    layout->addWidget(m_documentTabs);
    layout->addWidget(m_drawingArea, 1);
    setCentralWidget(centre);

    auto* commandDock = new CommandDock(m_commandLine, *this);
    auto* journal = new JournalPanel(m_host->journal(), this);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    addDockWidget(Qt::BottomDockWidgetArea, commandDock);
    splitDockWidget(commandDock, journal, Qt::Horizontal);
    resizeDocks({commandDock}, {CommandLineHeight}, Qt::Vertical);
    journal->hide();
    m_hostMenu->addAction(journal->toggleViewAction());
    m_hostMenu->addAction(commandDock->toggleViewAction());
}

void MainWindow::createStatusBar()
{
    m_coordinates->setObjectName("coordinates");
    m_coordinates->setMinimumWidth(fontMetrics().horizontalAdvance("-00000.0000, -00000.0000, 0.0000"));
    m_gridButton->setText("GRID");
    m_gridButton->setToolTip("Shows or hides the grid");
    m_gridButton->setCheckable(true);
    m_gridButton->setChecked(m_drawingArea->isGridVisible());
    m_gridButton->setAutoRaise(true);
    m_gridButton->setFocusPolicy(Qt::NoFocus);
    statusBar()->addWidget(m_coordinates);
    statusBar()->addPermanentWidget(new QLabel("MODEL"));
    statusBar()->addPermanentWidget(m_gridButton);
    statusBar()->addPermanentWidget(m_unitButton);
}

void MainWindow::createCommands()
{
    m_commands = {
        {"NEW", [this] { m_host->newDocument(); }},
        {"CLOSE", [this] { m_host->closeActiveDocument(); }},
        {"QUIT", [this] { close(); }},
        {"REGEN", [this] { m_drawingArea->update(); }},
        {"ZOOMEXTENTS", [this] { m_drawingArea->zoomExtents(); }},
        {"ZOOMIN", [this] { m_drawingArea->zoomIn(); }},
        {"ZOOMOUT", [this] { m_drawingArea->zoomOut(); }},
        {"GRID", [this] { toggleGrid(); }},
        {"RECONNECT", [this] { emit reconnectRequested(); }},
        {"UNITS", [this] { m_unitButton->showMenu(); }},
        {"HELP", [this] { printCommands(); }},
    };
    const auto drawingCommands = m_drawingCommands->commands();
    for (auto command = drawingCommands.begin(); command != drawingCommands.end(); ++command)
        m_commands.insert(command.key(), command.value());
}

void MainWindow::connectParts()
{
    const HostChanges& changes = m_host->changes();
    connect(&changes, &HostChanges::menusChanged, this, &MainWindow::showMenus);
    connect(&changes, &HostChanges::ribbonChanged, this, &MainWindow::showRibbon);
    connect(&changes, &HostChanges::drawingMissed, this, [this] {
        m_commandLine->print("The add-in has asked for the drawing, and none is open: NEW opens one.");
    });
    connect(&changes, &HostChanges::documentsChanged, this, &MainWindow::showDocuments);
    connect(&changes, &HostChanges::blocksChanged, m_drawingArea, &DrawingArea::showBlocks);
    connect(&changes, &HostChanges::blocksChanged, this, &MainWindow::showAvailability);
    connect(m_drawingArea, &DrawingArea::selectionChanged, this, &MainWindow::showAvailability);

    connect(m_menuBar, &HostMenuBar::commandChosen, this, &MainWindow::runCommand);
    connect(m_ribbon, &Ribbon::commandChosen, this, &MainWindow::runCommand);
    connect(m_menuBar, &HostMenuBar::userCommandChosen, this, &MainWindow::runUserCommand);
    connect(m_ribbon, &Ribbon::userCommandChosen, this, &MainWindow::runUserCommand);
    connect(m_unitButton, &UnitButton::unitChosen, m_drawingCommands.get(), &DrawingCommands::setUnit);
    connect(m_hostMenu, &HostMenu::darkThemeChosen, this, &MainWindow::applyTheme);
    connect(m_hostMenu, &HostMenu::nextConnectChosen, this, &MainWindow::offerReconnect);
    connect(m_hostMenu, &HostMenu::reconnectChosen, this, &MainWindow::reconnectRequested);
    connect(m_reconnectBar, &ReconnectBar::reconnectChosen, this, &MainWindow::reconnectRequested);
    connect(this, &MainWindow::reconnectRequested, m_reconnectBar, &QWidget::hide);
    connect(m_hostMenu, &HostMenu::galleryChosen, this, &MainWindow::showGallery);
    connect(m_hostMenu, &HostMenu::unsaidChosen, this, &MainWindow::showUnsaid);
    connect(m_gridButton, &QToolButton::clicked, this, &MainWindow::toggleGrid);

    connect(m_commandLine, &CommandLine::submitted, this, &MainWindow::takeText);
    connect(m_commandLine, &CommandLine::escapePressed, m_drawingArea, &DrawingArea::clearSelection);
    connect(m_drawingArea, &DrawingArea::cursorMoved, this, &MainWindow::showCursor);

    connect(m_documentTabs, &QTabBar::tabBarClicked, this, [this](int index) {
        if (index >= 0)
            m_host->activate(*m_host->documents().objects().at(static_cast<std::size_t>(index)));
    });
}

void MainWindow::takeText(const QString& text)
{
    if (PlacementPrompt* prompt = currentPrompt())
        prompt->submit(text);
    else
        runCommand(text.isEmpty() ? m_lastCommand : text); // An empty line repeats.
}

void MainWindow::runCommand(const QString& text)
{
    if (text.isEmpty())
        return;
    m_lastCommand = text;
    const QString command = text.toUpper();
    if (const auto own = m_commands.value(command)) {
        own();
        return;
    }
    if (m_host->runCommand(text))
        return;
    m_commandLine->print(isShownCommand(command)
                             ? QString("%1 is not part of the development host.").arg(command)
                             : QString("Unknown command \"%1\". HELP lists the commands.").arg(text));
}

bool MainWindow::isShownCommand(const QString& command) const
{
    for (const auto& menu : m_host->menus().objects())
        if (menu->entries().find([&](const auto& entry) { return entry.properties().command == command; }))
            return true;
    return !m_ribbon->findChildren<QToolButton*>(command).isEmpty();
}

/// @return whether a menu entry or ribbon button has something to run.
bool MainWindow::isAvailable(const QString& command) const
{
    return m_commands.contains(command) && m_drawingCommands->hasSubject(command);
}

void MainWindow::showAvailability()
{
    for (QWidget* part : {static_cast<QWidget*>(m_menuBar), static_cast<QWidget*>(m_ribbon)})
        for (QObject* object : part->findChildren<QObject*>()) {
            const QString command = object->property(HostCommandProperty).toString();
            if (!command.isEmpty())
                object->setProperty("enabled", isAvailable(command));
        }
}

void MainWindow::runUserCommand(const QString& id)
{
    if (const auto userCommand = m_host->findUserCommand(id))
        m_lastCommand = userCommand->properties().macro.section("^C", -1).trimmed();
    m_host->runUserCommand(id);
}

void MainWindow::printCommands()
{
    QStringList names = m_commands.keys();
    for (const auto& command : m_host->commands().objects())
        names.append(command->name());
    names.sort();
    m_commandLine->print("Commands: " + names.join(", "));
}

void MainWindow::applyTheme(bool dark)
{
    const SheetsSetAside sheets(*this);
    applyWindowTheme(dark);
    m_drawingArea->setDark(dark);
    showMenus(); // Icons have the colour of the text.
    showRibbon();
    showDocuments();
}

void MainWindow::offerReconnect(const QString& consequence)
{
    if (chosenSettings() == m_host->settings())
        m_reconnectBar->hide();
    else
        m_reconnectBar->offer(consequence);
}

void MainWindow::showMenus()
{
    m_menuBar->showMenus(*m_host);
    showAvailability();
}

void MainWindow::showRibbon()
{
    const auto workspaces = m_host->workspaces().objects();
    if (!workspaces.empty())
        m_ribbon->showWorkspace(*m_host, *workspaces.front());
    showAvailability();
}

void MainWindow::showDocuments()
{
    while (m_documentTabs->count() > 0)
        m_documentTabs->removeTab(0);
    const auto active = m_host->activeDocument();
    for (const auto& document : m_host->documents().objects()) {
        const int index = m_documentTabs->addTab(document->name());
        m_documentTabs->setTabButton(index, QTabBar::RightSide, createCloseButton(*document));
        if (document == active)
            m_documentTabs->setCurrentIndex(index);
    }
    m_drawingArea->setDocument(active);
    m_unitButton->showUnit(m_drawingArea->unit());
    m_unitButton->setEnabled(active != nullptr);
    showAvailability();
    setWindowTitle(active ? QString("Plotvane Development Host - [%1]").arg(active->name())
                          : QString("Plotvane Development Host"));
}

QWidget* MainWindow::createCloseButton(const HostDocument& document)
{
    auto* button = new QToolButton;
    button->setAutoRaise(true);
    button->setIcon(commandIcon("CLOSE", palette().color(QPalette::WindowText)));
    button->setIconSize({12, 12});
    button->setToolTip(QString("Close %1").arg(document.name()));
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QToolButton::clicked, this, [this, &document] { // The tab goes with the drawing.
        m_host->activate(document);
        m_host->closeActiveDocument();
    });
    return button;
}

void MainWindow::showCursor(const QPointF& model)
{
    m_coordinates->setText(QString("%1, %2, 0.0000").arg(model.x(), 0, 'f', 4).arg(model.y(), 0, 'f', 4));
}

void MainWindow::toggleGrid()
{
    m_drawingArea->setGridVisible(!m_drawingArea->isGridVisible());
    m_gridButton->setChecked(m_drawingArea->isGridVisible());
}

void MainWindow::showGallery()
{
    auto* gallery = new WidgetGallery(AddInStyleSheet, this);
    gallery->setAttribute(Qt::WA_DeleteOnClose);
    gallery->show();
}

void MainWindow::showUnsaid()
{
    auto* text = new TextDialog("What the Add-in Leaves Unsaid", ":/devhost/unsaid.md", this);
    text->setAttribute(Qt::WA_DeleteOnClose);
    text->show();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    m_view->cancelPrompt();
    event->accept();
}

} // namespace devhost
