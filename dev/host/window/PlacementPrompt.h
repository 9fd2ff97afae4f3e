#pragma once

#include "dev/host/drawing/DwgReader.h"
#include "dev/host/model/BlockPrompt.h"

#include <QEventLoop>
#include <QPointer>
#include <QShortcut>

namespace devhost
{

class CommandLine;
class DrawingArea;

/// Lets the user place a block: it follows the cursor until a click, a typed point, or the cancellation.
///
/// Typed are "x,y" (or "x,y,z") and, where the caller asks for them, the keywords Scale and Rotate; "cancel"
/// or Esc gives up. The prompt lives through the end of the widgets that it shows itself in: that is a
/// cancellation.
class PlacementPrompt final : public QObject
{
    Q_OBJECT

public:
    /// @param content what of the block's file could be read; without lines it is placed as a cross.
    PlacementPrompt(DrawingArea& drawingArea, CommandLine& commandLine, BlockPrompt prompt,
                    const DwgContent& content);
    ~PlacementPrompt() override;

    /// Runs an event loop until the user has answered.
    BlockPromptAnswer exec();

    /// What the user typed into the command line.
    void submit(const QString& text);
    void cancel();

private:
    enum class Wanted { Point, Scale, Rotation };

    void acceptAt(const QPointF& model, double z = 0.0);
    void submitPoint(const QString& text);
    void submitScale(const QString& text);
    void submitRotation(const QString& text);
    void want(Wanted wanted);
    void complain(const QString& text);

    QPointer<DrawingArea> m_drawingArea;
    QPointer<CommandLine> m_commandLine;
    BlockPrompt m_prompt;
    BlockGeometry m_geometry;
    Wanted m_wanted = Wanted::Point;
    BlockPromptAnswer m_answer;
    bool m_answered = false;
    QPointer<QShortcut> m_escape; // Belongs to the drawing area.
    QEventLoop m_loop;
};

} // namespace devhost
