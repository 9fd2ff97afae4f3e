#include "panel/PlacementQueue.h"

#include "panel/BlockInsertion.h"
#include "panel/DownloadedFile.h"

#include <QObject>

#include <utility>

namespace
{

struct Drawing {
    std::unique_ptr<DownloadedFile> file;
    pvApplication_c* application = nullptr;
    QObject* asker = nullptr;
};

/// Whether the host's prompt is open for one of our drawings. Process-wide.
bool PromptOpen = false;
/// The drawing that is placed next; without a file where none waits. Process-wide.
Drawing WaitingDrawing;

} // namespace

void placeDrawing(std::unique_ptr<DownloadedFile> file, pvApplication_c* application, QObject* asker)
{
    WaitingDrawing = {std::move(file), application, asker};
    if (PromptOpen)
        return;
    PromptOpen = true;
    while (WaitingDrawing.file) {
        // Held here: the asker may go, or begin another download, while the prompt is open.
        const Drawing drawing = std::exchange(WaitingDrawing, {});
        promptAndInsertBlock(drawing.application, drawing.file->path(), drawing.asker);
    }
    PromptOpen = false;
}

void withdrawDrawing(const QObject* asker)
{
    if (WaitingDrawing.asker == asker)
        WaitingDrawing = {};
}
