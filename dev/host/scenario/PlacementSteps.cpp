#include "dev/host/scenario/PlacementSteps.h"

#include "dev/host/scenario/UserInput.h"
#include "dev/host/window/CommandLine.h"
#include "dev/host/window/DrawingArea.h"
#include "dev/host/window/MainWindow.h"

#include <QDir>
#include <QLabel>

#include <cmath>

namespace devhost
{

namespace
{

constexpr double Tolerance = 1e-6; // Drawing units.

bool isSamePoint(const BlockPlacement& placement, const QPointF& point)
{
    return std::abs(placement.x - point.x()) < Tolerance && std::abs(placement.y - point.y()) < Tolerance;
}

} // namespace

PlacementSteps::PlacementSteps(MainWindow& window, bool areReadable)
    : m_window(window), m_areReadable(areReadable), m_pages(window)
{
}

TourStep PlacementSteps::clickPreview(const QString& ending) const
{
    TourStep step;
    step.name = "Click the preview";
    step.act = [this] { return userInput::click(m_pages.preview()); };
    step.look = [=] { return lookForPrompt(ending); };
    return step;
}

TourStep PlacementSteps::steerBlock(const QPointF& place) const
{
    TourStep step;
    step.name = "Move the cursor into the drawing";
    step.act = [=] { return userInput::moveMouse(&m_window.drawingArea(), pixelAt(place)); };
    step.look = [this]() -> Observation {
        const bool isThere = m_window.drawingArea().isBlockAtCursor();
        return {isThere, isThere ? "the block is at the cursor" : "no block is at the cursor"};
    };
    return step;
}

TourStep PlacementSteps::placeBlock(const QPointF& place) const
{
    const auto countBefore = std::make_shared<int>(0);
    const auto point = std::make_shared<QPointF>();
    TourStep step;
    step.name = "Click into the drawing";
    step.act = [=] {
        *countBefore = blockCount();
        *point = m_window.drawingArea().toModel(pixelAt(place));
        return userInput::click(&m_window.drawingArea(), pixelAt(place));
    };
    step.look = [=] { return lookForBlock(*point, *countBefore); };
    return step;
}

TourStep PlacementSteps::undoPlacement() const
{
    TourStep step = pressForBlocks(Qt::Key_Z, -1);
    step.name = "Undo the placement";
    return step;
}

TourStep PlacementSteps::redoPlacement() const
{
    TourStep step = pressForBlocks(Qt::Key_Y, 1);
    step.name = "Redo the placement";
    return step;
}

TourStep PlacementSteps::pressForBlocks(Qt::Key key, int added) const
{
    const auto expected = std::make_shared<int>(0);
    TourStep step;
    step.act = [=] {
        *expected = blockCount() + (m_areReadable ? added : 0);
        return userInput::press(key, Qt::ControlModifier);
    };
    step.look = [=]() -> Observation {
        return {
            blockCount() == *expected,
            QString("blocks: %1; %2").arg(blockCount()).arg(m_window.commandLine().history().constLast())};
    };
    return step;
}

TourStep PlacementSteps::cancelPlacement() const
{
    const auto countBefore = std::make_shared<int>(0);
    TourStep step;
    step.name = "Press Esc";
    step.act = [=] {
        *countBefore = blockCount();
        return userInput::press(Qt::Key_Escape);
    };
    step.look = [=]() -> Observation {
        const bool isOver = m_window.currentPrompt() == nullptr && downloadedFiles().isEmpty();
        return {isOver && blockCount() == *countBefore,
                isOver ? QString("the command line is back at \"%1\", no file is left, %2 blocks as before")
                             .arg(m_window.commandLine().prompt())
                             .arg(blockCount())
                       : "the command line still asks: " + m_window.commandLine().prompt()};
    };
    return step;
}

TourStep PlacementSteps::lookAtDrawing(int blocks) const
{
    TourStep step;
    step.name = "Look at the drawing";
    step.look = [=]() -> Observation {
        const int expected = m_areReadable ? blocks : 0;
        return {
            blockCount() == expected && downloadedFiles().isEmpty(),
            QString("blocks: %1, downloaded files left: %2").arg(blockCount()).arg(downloadedFiles().size())};
    };
    return step;
}

int PlacementSteps::blockCount() const
{
    const auto document = m_window.host().activeDocument();
    return document ? int(document->blocks().objects().size()) : 0;
}

QStringList PlacementSteps::downloadedFiles()
{
    return QDir::current().entryList(QDir::Files | QDir::Hidden);
}

QPoint PlacementSteps::pixelAt(const QPointF& place) const
{
    const DrawingArea& area = m_window.drawingArea();
    return QPointF(place.x() * area.width(), place.y() * area.height()).toPoint();
}

Observation PlacementSteps::lookForPrompt(const QString& ending) const
{
    if (m_window.currentPrompt() == nullptr)
        return {false, "the command line asks nothing"};
    const QStringList files = downloadedFiles();
    const QString asked = QString("the command line asks \"%1\" with %2 downloaded")
                              .arg(m_window.commandLine().prompt(), files.join(", "));
    const bool isOneFile = files.size() == 1 && files.constFirst().endsWith(ending);
    if (m_areReadable)
        return {isOneFile, asked};
    return {isOneFile && !lastLineAboutFile().isEmpty(), asked + ", and says: " + lastLineAboutFile()};
}

Observation PlacementSteps::lookForBlock(const QPointF& point, int countBefore) const
{
    if (m_window.currentPrompt() != nullptr)
        return {false, "the command line still asks: " + m_window.commandLine().prompt()};
    if (!downloadedFiles().isEmpty())
        return {false, "a file is left: " + downloadedFiles().join(", ")};
    if (!m_areReadable)
        return {blockCount() == countBefore, "no file is left, no block came: " + lastLineAboutFile()};
    if (blockCount() != countBefore + 1)
        return {false, QString("%1 blocks where %2 were").arg(blockCount()).arg(countBefore)};
    const auto block = m_window.host().activeDocument()->blocks().objects().back();
    return {isSamePoint(block->placement(), point) && !block->geometry().paths.isEmpty(),
            QString("block \"%1\" of %2 lines at %3, %4 for a click at %5, %6; no file is left")
                .arg(block->name())
                .arg(block->geometry().paths.size())
                .arg(block->placement().x)
                .arg(block->placement().y)
                .arg(point.x())
                .arg(point.y())};
}

/// @return the newest line in which the host says that it cannot read a file; empty when there is none.
QString PlacementSteps::lastLineAboutFile() const
{
    const QStringList lines = m_window.commandLine().history().filter("Cannot read");
    return lines.isEmpty() ? QString() : lines.constLast();
}

} // namespace devhost
