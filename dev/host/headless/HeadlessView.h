#pragma once

#include "dev/host/model/HostView.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>

namespace devhost
{

/// The user interface of a host without a window: panes are plain native widgets, prompts answer as the test
/// has set them.
class HeadlessView : public HostView
{
public:
    /// Has panes report that handle instead of their widget's.
    void reportHandle(quintptr handle) { m_reportedHandle = handle; }
    /// Keeps the next pane's widget when the pane is destroyed, and hands it out again.
    void keepPane() { m_keepsPane = true; }
    /// Answers every prompt from now on; the script may do what a user could do meanwhile. Without one
    /// prompts are cancelled.
    void answerPrompts(std::function<BlockPromptAnswer(const BlockPrompt&)> script)
    {
        m_promptScript = std::move(script);
    }
    /// Answers every prompt from now on by placing the block at that point, as preset otherwise.
    void acceptPromptsAt(double x, double y);

    /// @return the widget of the newest pane; null when there is none, or it is gone.
    QWidget* paneWidget() const { return m_paneWidget; }
    /// @return how many prompts there were so far.
    std::size_t promptCount() const { return m_promptCount; }

    // HostView
    std::unique_ptr<PaneView> createPane(const QString& title) override;
    BlockPromptAnswer promptForBlock(const BlockPrompt& prompt) override;
    void cancelPrompt() override {}
    /// @return an empty block for a file that exists.
    std::optional<BlockGeometry> readBlock(const QString& file, DrawingUnit unit) override;
    bool openWebHelp(const QString& /*address*/) override { return true; }
    bool openHelpFile(const QString& /*file*/, long /*topic*/) override { return true; }

private:
    std::optional<quintptr> m_reportedHandle;
    bool m_keepsPane = false;
    std::shared_ptr<QWidget> m_keptPane;
    std::function<BlockPromptAnswer(const BlockPrompt&)> m_promptScript;
    QPointer<QWidget> m_paneWidget;
    std::size_t m_promptCount = 0;
};

} // namespace devhost
