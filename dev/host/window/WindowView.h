#pragma once

#include "dev/host/model/HostView.h"
#include "dev/host/window/PlacementPrompt.h"

#include <QPointer>

class QMainWindow;

namespace devhost
{

class CommandLine;
class DrawingArea;

/// Does in the window what the host's model cannot do itself.
class WindowView final : public HostView
{
public:
    /// The window and its parts stay the caller's and must outlive the view.
    WindowView(QMainWindow& window, DrawingArea& drawingArea, CommandLine& commandLine);

    /// @return the open prompt; null when there is none.
    PlacementPrompt* currentPrompt() const { return m_prompt; }

    std::unique_ptr<PaneView> createPane(const QString& title) override;
    BlockPromptAnswer promptForBlock(const BlockPrompt& prompt) override;
    void cancelPrompt() override;
    std::optional<BlockGeometry> readBlock(const QString& file, DrawingUnit unit) override;
    bool openWebHelp(const QString& address) override;
    bool openHelpFile(const QString& file, long topic) override;

private:
    QMainWindow& m_window;
    DrawingArea& m_drawingArea;
    CommandLine& m_commandLine;
    QPointer<PlacementPrompt> m_prompt;
};

} // namespace devhost
