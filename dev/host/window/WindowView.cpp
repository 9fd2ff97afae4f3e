#include "dev/host/window/WindowView.h"

#include "dev/host/drawing/DwgReader.h"
#include "dev/host/window/CommandLine.h"
#include "dev/host/window/DockPane.h"
#include "dev/host/window/DrawingArea.h"

#include <QMainWindow>

namespace devhost
{

WindowView::WindowView(QMainWindow& window, DrawingArea& drawingArea, CommandLine& commandLine)
    : m_window(window), m_drawingArea(drawingArea), m_commandLine(commandLine)
{
}

std::unique_ptr<PaneView> WindowView::createPane(const QString& title)
{
    return std::make_unique<DockPane>(title, m_window);
}

BlockPromptAnswer WindowView::promptForBlock(const BlockPrompt& prompt)
{
    if (!m_drawingArea.document()) {
        m_commandLine.print("No drawing is open to place a block in.");
        return {};
    }
    PlacementPrompt question(m_drawingArea, m_commandLine, prompt,
                             readDwg(prompt.file, m_drawingArea.unit()));
    m_prompt = &question;
    return question.exec(); // The view may be gone afterwards.
}

void WindowView::cancelPrompt()
{
    if (m_prompt)
        m_prompt->cancel();
}

std::optional<BlockGeometry> WindowView::readBlock(const QString& file, DrawingUnit unit)
{
    DwgContent content = readDwg(file, unit);
    if (!content.geometry)
        m_commandLine.print(content.problem + " No block was inserted.");
    return std::move(content.geometry);
}

bool WindowView::openWebHelp(const QString& address)
{
    m_commandLine.print(QString("Web help: %1").arg(address));
    return true;
}

bool WindowView::openHelpFile(const QString& file, long topic)
{
    m_commandLine.print(QString("Help file: %1, topic %2").arg(file).arg(topic));
    return true;
}

} // namespace devhost
