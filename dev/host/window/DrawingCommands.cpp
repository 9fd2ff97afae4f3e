#include "dev/host/window/DrawingCommands.h"

#include "dev/host/drawing/DwgReader.h"
#include "dev/host/window/CommandLine.h"
#include "dev/host/window/DrawingArea.h"
#include "dev/host/window/DrawingFile.h"

#include <QDir>
#include <QFileDialog>

namespace devhost
{

DrawingCommands::DrawingCommands(HostApplication& host, DrawingArea& area, CommandLine& commandLine,
                                 QWidget& window)
    : m_host(host), m_area(area), m_commandLine(commandLine), m_window(window)
{
    connect(&host.changes(), &HostChanges::blockInserted, this,
            [this](const QString& name, const QPointF& point) {
                print(QString("Block %1 inserted at %2,%3.")
                          .arg(name)
                          .arg(point.x(), 0, 'f', 4)
                          .arg(point.y(), 0, 'f', 4));
            });
}

QHash<QString, std::function<void()>> DrawingCommands::commands()
{
    return {
        {"OPEN", [this] { chooseFileToOpen(); }},
        {"SAVEAS", [this] { chooseCopy(); }},
        {"ERASE", [this] { erase(); }},
        {"UNDO", [this] { undo(); }},
        {"REDO", [this] { redo(); }},
    };
}

bool DrawingCommands::hasSubject(const QString& command) const
{
    const auto document = m_host.activeDocument();
    if (command == "ERASE")
        return !m_area.selection().empty();
    if (command == "UNDO")
        return document && document->content().history().canUndo();
    if (command == "REDO")
        return document && document->content().history().canRedo();
    return document || (command != "SAVEAS" && command != "CLOSE");
}

void DrawingCommands::chooseFileToOpen()
{
    auto* dialog = new QFileDialog(&m_window, "Open Drawing");
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters({"Drawings (*.dwg *.DWG)", "All files (*)"});
    connect(dialog, &QFileDialog::fileSelected, this, &DrawingCommands::open);
    dialog->open();
}

void DrawingCommands::chooseCopy()
{
    const auto document = m_host.activeDocument();
    if (!document) {
        print("No drawing is open to save.");
        return;
    }
    auto* dialog = new QFileDialog(&m_window, "Save a Copy As");
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters({"DXF drawing (*.dxf)", "SVG picture (*.svg)"});
    dialog->setDefaultSuffix("dxf");
    connect(dialog, &QFileDialog::filterSelected, dialog, [dialog](const QString& filter) {
        dialog->setDefaultSuffix(filter.contains("svg") ? "svg" : "dxf");
    });
    dialog->selectFile(QFileInfo(document->name()).completeBaseName());
    connect(dialog, &QFileDialog::fileSelected, this, &DrawingCommands::saveAs);
    dialog->open();
}

void DrawingCommands::open(const QString& path)
{
    const DwgContent content = readDwg(path);
    if (!content.problem.isEmpty())
        print(content.problem);
    if (!content.geometry)
        return;
    const QString name = QFileInfo(path).fileName();
    m_host.openDocument(name, *content.geometry, content.unit);
    print(QString("%1 opened; its unit: %2.").arg(name, unitSymbol(content.unit)));
}

void DrawingCommands::saveAs(const QString& path)
{
    const auto document = m_host.activeDocument();
    if (!document) // It may have been closed meanwhile.
        return;
    const QString problem = saveDrawing(document->content(), path);
    print(problem.isEmpty() ? QString("Copy saved as %1.").arg(QDir::toNativeSeparators(path)) : problem);
}

void DrawingCommands::setUnit(DrawingUnit unit)
{
    m_host.setUnit(unit);
    if (m_area.document() && m_area.document()->blocks().objects().empty())
        m_area.zoomExtents(); // The empty drawing is as large in every unit.
    print(QString("The drawing's unit: %1.").arg(unitSymbol(unit)));
}

void DrawingCommands::erase()
{
    const auto selection = m_area.selection();
    if (selection.empty()) {
        print("Nothing is selected. A click on a block selects it.");
        return;
    }
    m_host.activeDocument()->content().erase(selection);
    print(selection.size() == 1 ? QString("1 block erased.")
                                : QString("%1 blocks erased.").arg(selection.size()));
}

void DrawingCommands::undo()
{
    if (!hasSubject("UNDO")) {
        print("Nothing to undo.");
        return;
    }
    QUndoStack& history = m_host.activeDocument()->content().history();
    print(QString("Undone: %1.").arg(history.undoText()));
    history.undo();
}

void DrawingCommands::redo()
{
    if (!hasSubject("REDO")) {
        print("Nothing to redo.");
        return;
    }
    QUndoStack& history = m_host.activeDocument()->content().history();
    print(QString("Done again: %1.").arg(history.redoText()));
    history.redo();
}

void DrawingCommands::print(const QString& text)
{
    m_commandLine.print(text);
}

} // namespace devhost
