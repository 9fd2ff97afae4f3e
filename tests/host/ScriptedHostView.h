#pragma once

#include "dev/host/headless/HeadlessView.h"

#include <QStringList>

#include <vector>

namespace test
{

/// A host's user interface in a test: it notes what it was asked for.
class ScriptedHostView final : public devhost::HeadlessView
{
public:
    /// @return the prompts so far, and what each file held at that moment.
    const std::vector<devhost::BlockPrompt>& prompts() const { return m_prompts; }
    const std::vector<QByteArray>& promptedContents() const { return m_promptedContents; }
    /// @return the help opened so far: an address, or "file#topic".
    const QStringList& openedHelp() const { return m_openedHelp; }

    // devhost::HostView
    devhost::BlockPromptAnswer promptForBlock(const devhost::BlockPrompt& prompt) override;
    bool openWebHelp(const QString& address) override;
    bool openHelpFile(const QString& file, long topic) override;

private:
    std::vector<devhost::BlockPrompt> m_prompts;
    std::vector<QByteArray> m_promptedContents;
    QStringList m_openedHelp;
};

} // namespace test
