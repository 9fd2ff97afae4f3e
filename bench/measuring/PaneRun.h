#pragma once

#include "bench/measuring/MeasuredApplication.h"
#include "bench/measuring/Steps.h"
#include "dev/host/headless/HeadlessView.h"
#include "dev/host/headless/PaneUser.h"
#include "dev/host/model/AddInLibrary.h"
#include "dev/host/model/HostApplication.h"

#include <QTemporaryDir>

#include <memory>

namespace bench
{

/// A built library in a host without a window, and a user who walks through its pages. Each step ends when
/// its outcome is on the screen; one that never comes ends the program with a message.
class PaneRun
{
public:
    /// Loads the library, and connects nothing yet.
    /// @param application counts what the steps leave; must outlive this.
    /// @param library path of the add-in.
    PaneRun(MeasuredApplication& application, const QString& library);
    PaneRun(const PaneRun&) = delete;
    PaneRun& operator=(const PaneRun&) = delete;
    /// Disconnects and unloads.
    ~PaneRun();

    const devhost::PaneUser& user() const { return m_user; }

    /// Until the pane is on the screen; it gets its key afterwards, see settle().
    StepTime connect();
    void logIn();
    StepTime search(const QString& term);
    StepTime turnToPage(const QString& page);
    /// Until its configuration, its picture and all replies are there.
    StepTime openPart(int row);
    /// Clicks the preview, until the drawing is placed and its file gone.
    StepTime download();
    StepTime backToResults();
    StepTime backToMainPanel();

    /// @return whether no request is under way.
    bool hasAllReplies() const;
    /// Waits until all replies have come, and what they leave behind has gone.
    void settle();
    /// Has the host forget what it keeps for each step: a program's journal and drawing, not the add-in's.
    void forgetHostRecords();

private:
    MeasuredApplication& m_application;
    QTemporaryDir m_currentFolder;
    QString m_folderBefore;
    devhost::HeadlessView m_view;
    devhost::PaneUser m_user{m_view};
    std::shared_ptr<devhost::HostApplication> m_host;
    devhost::AddInLibrary m_library;
};

} // namespace bench
