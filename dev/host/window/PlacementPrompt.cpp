#include "dev/host/window/PlacementPrompt.h"

#include "dev/host/window/CommandLine.h"
#include "dev/host/window/DrawingArea.h"

#include <QFileInfo>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace devhost
{

namespace
{

constexpr double LargestCoordinate = 1e9; // Beyond, the painter's numbers run over.

/// @return whether the text abbreviates the keyword.
bool isKeyword(const QString& text, const QString& keyword)
{
    return !text.isEmpty() && keyword.startsWith(text, Qt::CaseInsensitive);
}

/// @return the numbers of "1,2.5"; none when a part is not a finite number.
QVector<double> numbersIn(const QString& text)
{
    QVector<double> numbers;
    for (const QString& part : text.split(',')) {
        bool valid = false;
        numbers.append(part.trimmed().toDouble(&valid));
        if (!valid || !std::isfinite(numbers.back()))
            return {};
    }
    return numbers;
}

} // namespace

PlacementPrompt::PlacementPrompt(DrawingArea& drawingArea, CommandLine& commandLine, BlockPrompt prompt,
                                 const DwgContent& content)
    : m_drawingArea(&drawingArea),
      m_commandLine(&commandLine),
      m_prompt(std::move(prompt)),
      m_geometry(content.geometry.value_or(BlockGeometry())),
      m_escape(new QShortcut(Qt::Key_Escape, &drawingArea))
{
    m_answer.placement = m_prompt.preset;
    connect(&drawingArea, &DrawingArea::clicked, this, [this](const QPointF& model) { acceptAt(model); });
    connect(&drawingArea, &QObject::destroyed, this, &PlacementPrompt::cancel);
    connect(&commandLine, &CommandLine::escapePressed, this, &PlacementPrompt::cancel);
    m_escape->setContext(Qt::ApplicationShortcut); // A floating pane may have the focus.
    connect(m_escape, &QShortcut::activated, this, &PlacementPrompt::cancel);

    commandLine.print(QString("Block %1").arg(QFileInfo(m_prompt.file).completeBaseName()));
    if (content.factor != 1.0)
        commandLine.print(QString("Its unit is %1; it is scaled by %2 to the drawing's, %3.")
                              .arg(unitSymbol(content.unit))
                              .arg(content.factor)
                              .arg(unitSymbol(drawingArea.unit())));
    if (!content.problem.isEmpty())
        commandLine.print(content.problem);
    drawingArea.setFocus(Qt::OtherFocusReason);
    want(Wanted::Point);
}

PlacementPrompt::~PlacementPrompt()
{
    delete m_escape;
    if (m_drawingArea)
        m_drawingArea->hideBlockAtCursor();
    if (m_commandLine)
        m_commandLine->resetPrompt();
}

BlockPromptAnswer PlacementPrompt::exec()
{
    if (!m_answered)
        m_loop.exec();
    return m_answer;
}

void PlacementPrompt::submit(const QString& text)
{
    if (isKeyword(text, "cancel")) {
        cancel();
        return;
    }
    switch (m_wanted) {
    case Wanted::Point:
        submitPoint(text);
        break;
    case Wanted::Scale:
        submitScale(text);
        break;
    case Wanted::Rotation:
        submitRotation(text);
        break;
    }
}

void PlacementPrompt::submitPoint(const QString& text)
{
    if (m_prompt.askScale && isKeyword(text, "scale")) {
        want(Wanted::Scale);
        return;
    }
    if (m_prompt.askRotation && isKeyword(text, "rotate")) {
        want(Wanted::Rotation);
        return;
    }
    const QVector<double> numbers = numbersIn(text);
    const bool isNear = std::all_of(numbers.begin(), numbers.end(),
                                    [](double number) { return std::abs(number) <= LargestCoordinate; });
    if (numbers.size() != 2 && numbers.size() != 3)
        complain("A point is wanted as x,y.");
    else if (!isNear)
        complain("A point is wanted within -1e9 and 1e9.");
    else
        acceptAt({numbers.at(0), numbers.at(1)}, numbers.value(2));
}

void PlacementPrompt::submitScale(const QString& text)
{
    const QVector<double> numbers = numbersIn(text);
    if (!text.isEmpty() && (numbers.size() != 1 || numbers.front() == 0.0)) {
        complain("A factor other than 0 is wanted.");
        return;
    }
    if (!text.isEmpty()) {
        BlockPlacement& placement = m_answer.placement;
        placement.scaleX = placement.scaleY = placement.scaleZ = numbers.front();
    }
    want(Wanted::Point);
}

void PlacementPrompt::submitRotation(const QString& text)
{
    const QVector<double> numbers = numbersIn(text);
    if (!text.isEmpty() && numbers.size() != 1) {
        complain("An angle in degrees is wanted.");
        return;
    }
    if (!text.isEmpty())
        m_answer.placement.rotation = qDegreesToRadians(numbers.front());
    want(Wanted::Point);
}

void PlacementPrompt::want(Wanted wanted)
{
    m_wanted = wanted;
    if (!m_drawingArea || !m_commandLine)
        return;
    m_drawingArea->showBlockAtCursor(m_geometry, m_answer.placement);
    switch (wanted) {
    case Wanted::Point: {
        QStringList keywords;
        if (m_prompt.askScale)
            keywords << "Scale";
        if (m_prompt.askRotation)
            keywords << "Rotate";
        keywords << "Cancel";
        m_commandLine->setPrompt(QString("Specify insertion point or [%1]:").arg(keywords.join('/')));
        break;
    }
    case Wanted::Scale:
        m_commandLine->setPrompt(QString("Specify scale factor <%1>:").arg(m_answer.placement.scaleX));
        break;
    case Wanted::Rotation:
        m_commandLine->setPrompt(QString("Specify rotation angle in degrees <%1>:")
                                     .arg(qRadiansToDegrees(m_answer.placement.rotation)));
        break;
    }
}

void PlacementPrompt::complain(const QString& text)
{
    if (m_commandLine)
        m_commandLine->print(text);
}

void PlacementPrompt::acceptAt(const QPointF& model, double z)
{
    if (m_answered)
        return;
    m_answered = true;
    m_answer.result = BlockPromptAnswer::Accepted;
    m_answer.placement.x = model.x();
    m_answer.placement.y = model.y();
    m_answer.placement.z = z;
    m_loop.quit();
}

void PlacementPrompt::cancel()
{
    if (m_answered)
        return;
    m_answered = true;
    if (m_commandLine)
        m_commandLine->print("*Cancel*");
    m_loop.quit();
}

} // namespace devhost
