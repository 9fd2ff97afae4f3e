#pragma once

#include "dev/host/model/HostApplication.h"

#include <QHash>
#include <QMainWindow>

#include <functional>

class QLabel;
class QTabBar;
class QToolButton;

namespace devhost
{

class CommandLine;
class DrawingArea;
class DrawingCommands;
class HostMenu;
class HostMenuBar;
class KeyRouter;
class PlacementPrompt;
class ReconnectBar;
class Ribbon;
class UnitButton;
class WindowView;

/// The development host's window: shows the host's model and lets the user work with it.
///
/// It owns the model and gives it its user interface. Widgets are found by their object names: "menuBar",
/// "ribbon" (pages, panels and buttons by their identifiers), "drawingArea", "commandInput", "pane".
class MainWindow final : public QMainWindow
{
    Q_OBJECT

public:
    /// @param settings what the host reports to add-ins; the theme is also the window's.
    explicit MainWindow(const HostSettings& settings, QWidget* parent = nullptr);
    ~MainWindow() override;

    HostApplication& host() { return *m_host; }
    DrawingCommands& drawingCommands() { return *m_drawingCommands; }
    DrawingArea& drawingArea() { return *m_drawingArea; }
    CommandLine& commandLine() { return *m_commandLine; }
    /// @return the open prompt; null when there is none.
    PlacementPrompt* currentPrompt() const;
    /// @return what the user chose for the next connect.
    const HostSettings& chosenSettings() const;

    /// Runs what could be typed into the command line: a command of the host's own or of an add-in.
    void runCommand(const QString& text);
    /// Opens the gallery of standard widgets in the style sheet that the loaded add-in brings.
    void showGallery();

signals:
    void reconnectRequested();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void createLayout();
    void createStatusBar();
    void createCommands();
    void connectParts();
    void takeText(const QString& text);
    void applyTheme(bool dark);
    void offerReconnect(const QString& consequence);
    void showMenus();
    void showRibbon();
    void showDocuments();
    void showUnsaid();
    QWidget* createCloseButton(const HostDocument& document);
    void showCursor(const QPointF& model);
    void toggleGrid();
    bool isShownCommand(const QString& command) const;
    void printCommands();
    bool isAvailable(const QString& command) const;
    void showAvailability();
    void runUserCommand(const QString& id);

    DrawingArea* m_drawingArea = nullptr;
    CommandLine* m_commandLine = nullptr;
    std::unique_ptr<WindowView> m_view;
    std::shared_ptr<HostApplication> m_host;
    std::unique_ptr<DrawingCommands> m_drawingCommands;
    std::unique_ptr<KeyRouter> m_keyRouter;
    HostMenuBar* m_menuBar = nullptr;
    HostMenu* m_hostMenu = nullptr;
    Ribbon* m_ribbon = nullptr;
    ReconnectBar* m_reconnectBar = nullptr;
    QTabBar* m_documentTabs = nullptr;
    QLabel* m_coordinates = nullptr;
    QToolButton* m_gridButton = nullptr;
    UnitButton* m_unitButton = nullptr;
    QHash<QString, std::function<void()>> m_commands; // The host's own that do something, by their names.
    QString m_lastCommand;
};

} // namespace devhost
