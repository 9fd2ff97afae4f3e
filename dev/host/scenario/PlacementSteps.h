#pragma once

#include "dev/host/scenario/PanePages.h"
#include "dev/host/scenario/TourStep.h"

#include <QPointF>

#include <memory>

namespace devhost
{

class MainWindow;

/// What a user does to get a part's drawing from the detail page into the drawing.
class PlacementSteps
{
public:
    /// @param window must outlive the steps.
    /// @param areReadable whether the host can read the drawing files that come; a block is placed only then,
    /// while the others get one line that says so.
    PlacementSteps(MainWindow& window, bool areReadable);

    /// Outcome: the host prompts for the one downloaded file.
    /// @param ending what the file's name ends in.
    TourStep clickPreview(const QString& ending) const;
    /// Outcome: the block is at the cursor.
    /// @param place 0,0 for the drawing area's left top corner, 1,1 for the opposite one.
    TourStep steerBlock(const QPointF& place) const;
    /// Clicks that place. Outcome: one block more, there, and the file is gone.
    TourStep placeBlock(const QPointF& place) const;
    /// Presses the keys of undo, or of redo. Outcome: one block less, or more; none where none came.
    TourStep undoPlacement() const;
    TourStep redoPlacement() const;
    /// Presses Esc. Outcome: the prompt and the file are gone, no block came.
    TourStep cancelPlacement() const;

    /// Outcome: that many blocks, and no file.
    TourStep lookAtDrawing(int blocks) const;

private:
    TourStep pressForBlocks(Qt::Key key, int added) const;
    int blockCount() const;
    /// @return the names of the files that lie in the current directory.
    static QStringList downloadedFiles();
    QPoint pixelAt(const QPointF& place) const;
    Observation lookForPrompt(const QString& ending) const;
    Observation lookForBlock(const QPointF& point, int countBefore) const;
    QString lastLineAboutFile() const;

    MainWindow& m_window;
    bool m_areReadable;
    PanePages m_pages;
};

} // namespace devhost
