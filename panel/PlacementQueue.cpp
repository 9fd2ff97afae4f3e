#include "panel/PlacementQueue.h"

#include "panel/PreviewUI.h"

#include <QPointer>

namespace
{

bool promptOpen = false;
QPointer<PreviewUI> waitingPage;

} // namespace

void placeDrawing(PreviewUI* page)
{
    if (promptOpen) {
        if (!waitingPage.isNull() && waitingPage != page)
            waitingPage->dropDownload();
        waitingPage = page;
        return;
    }
    promptOpen = true;
    QPointer<PreviewUI> next(page);
    while (!next.isNull()) {
        next->promptForInsertion();
        next = waitingPage;
        waitingPage.clear();
    }
    promptOpen = false;
}

void withdrawDrawing(const PreviewUI* page)
{
    if (waitingPage == page)
        waitingPage.clear();
}
