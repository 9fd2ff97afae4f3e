#pragma once

#include "dev/host/model/BlockGeometry.h"
#include "dev/host/model/BlockPrompt.h"
#include "dev/host/model/DrawingUnit.h"

#include <memory>
#include <optional>

namespace devhost
{

/// A dockable pane's native side. Its end deletes the pane and all widgets in it before it returns.
class PaneView
{
public:
    PaneView() = default;
    PaneView(const PaneView&) = delete;
    PaneView& operator=(const PaneView&) = delete;
    virtual ~PaneView() = default;

    /// @return the native window identifier of the widget that the pane's owner fills.
    virtual quintptr windowHandle() const = 0;
    virtual bool isVisible() const = 0;
    virtual void setVisible(bool visible) = 0;
};

/// What the host's model cannot do without a user interface. The window implements it, tests in their own
/// way.
class HostView
{
public:
    HostView() = default;
    HostView(const HostView&) = delete;
    HostView& operator=(const HostView&) = delete;
    virtual ~HostView() = default;

    /// @return a new, hidden pane; null when there can be none.
    virtual std::unique_ptr<PaneView> createPane(const QString& title) = 0;

    /// Blocks until the user has placed the block or given up. Never called again before it returned.
    virtual BlockPromptAnswer promptForBlock(const BlockPrompt& prompt) = 0;

    /// Has an open prompt return as cancelled; without one it does nothing.
    virtual void cancelPrompt() = 0;

    /// @param unit of the drawing that is to get the block.
    /// @return what the drawing file draws, in that unit; nothing when it cannot be read.
    virtual std::optional<BlockGeometry> readBlock(const QString& file, DrawingUnit unit) = 0;

    /// @return whether the help was opened.
    virtual bool openWebHelp(const QString& address) = 0;
    /// @return whether the help was opened.
    virtual bool openHelpFile(const QString& file, long topic) = 0;
};

} // namespace devhost
