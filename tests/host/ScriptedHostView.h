#pragma once

#include "dev/host/model/HostView.h"

#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

namespace test
{

/// The user interface of a host in a test: panes are plain native widgets, prompts answer as told.
class ScriptedHostView final : public devhost::HostView
{
public:
    /// Has panes report that handle instead of their widget's.
    void reportHandle(quintptr handle) { m_reportedHandle = handle; }
    /// Keeps the next pane's widget when the pane is destroyed, and hands it out again.
    void keepPane() { m_keepsPane = true; }
    /// Answers every prompt from now on; the script may do what a user could do meanwhile. Without one
    /// prompts are cancelled.
    void answerPrompts(std::function<devhost::BlockPromptAnswer(const devhost::BlockPrompt&)> script)
    {
        m_promptScript = std::move(script);
    }
    /// Answers every prompt from now on by placing the block at that point, as preset otherwise.
    void acceptPromptsAt(double x, double y);

    /// @return the widget of the newest pane; null when there is none, or it is gone.
    QWidget* paneWidget() const { return m_paneWidget; }
    /// @return the prompts so far, and what each file held at that moment.
    const std::vector<devhost::BlockPrompt>& prompts() const { return m_prompts; }
    const std::vector<QByteArray>& promptedContents() const { return m_promptedContents; }
    /// @return the help opened so far: an address, or "file#topic".
    const QStringList& openedHelp() const { return m_openedHelp; }

    // devhost::HostView
    std::unique_ptr<devhost::PaneView> createPane(const QString& title) override;
    devhost::BlockPromptAnswer promptForBlock(const devhost::BlockPrompt& prompt) override;
    void cancelPrompt() override {}
    /// @return an empty block for a file that exists.
    std::optional<devhost::BlockGeometry> readBlock(const QString& file) override;
    bool openWebHelp(const QString& address) override;
    bool openHelpFile(const QString& file, long topic) override;

private:
    std::optional<quintptr> m_reportedHandle;
    bool m_keepsPane = false;
    std::shared_ptr<QWidget> m_keptPane;
    std::function<devhost::BlockPromptAnswer(const devhost::BlockPrompt&)> m_promptScript;
    QPointer<QWidget> m_paneWidget;
    std::vector<devhost::BlockPrompt> m_prompts;
    std::vector<QByteArray> m_promptedContents;
    QStringList m_openedHelp;
};

} // namespace test
