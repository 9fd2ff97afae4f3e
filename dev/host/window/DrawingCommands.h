#pragma once

#include "dev/host/model/HostApplication.h"

#include <QHash>
#include <QObject>

#include <functional>

class QWidget;

namespace devhost
{

class CommandLine;
class DrawingArea;

/// What the user does with drawings and their blocks: opens, saves, erases, undoes. Says in the command line
/// what came of it.
class DrawingCommands final : public QObject
{
    Q_OBJECT

public:
    /// All must outlive it. @param window parent of the dialogs.
    DrawingCommands(HostApplication& host, DrawingArea& area, CommandLine& commandLine, QWidget& window);

    /// @return the commands by their names.
    QHash<QString, std::function<void()>> commands();
    /// @return whether the command has something to work on; commands of others always have.
    bool hasSubject(const QString& command) const;

    /// Shows the DWG file as a drawing of its own, in the unit that it says.
    void open(const QString& path);
    /// Saves the active drawing as .dxf or .svg.
    void saveAs(const QString& path);
    /// Gives the active drawing that unit, and new ones from now on.
    void setUnit(DrawingUnit unit);

private:
    void chooseFileToOpen();
    void chooseCopy();
    void erase();
    void undo();
    void redo();
    void print(const QString& text);

    HostApplication& m_host;
    DrawingArea& m_area;
    CommandLine& m_commandLine;
    QWidget& m_window;
};

} // namespace devhost
