#include "panel/BlockInsertion.h"

#include "common/HostString.h"

#include <QObject>
#include <QPointer>

#include <pvInterface/pvApplication_c.h>
#include <pvInterface/pvCommandMessage_c.h>
#include <pvInterface/pvDocument_c.h>
#include <pvInterface/pvInterfacePtr.h>
#include <pvInterface/pvModel_c.h>
#include <pvInterface/pvSketchManager_c.h>

namespace
{

/// Where a block goes and how, preset to the drawing's origin in its own size.
struct Placement {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    double scaleX = 1.0;
    double scaleY = 1.0;
    double scaleZ = 1.0;
    double rotation = 0.0;
};

pvSketchManager_c* sketchManagerOf(pvDocument_c* document)
{
    pvModel_c* model = nullptr;
    document->GetModel(&model);
    pvSketchManager_c* manager = nullptr;
    if (model != nullptr)
        model->GetSketchManager(&manager);
    return manager;
}

/// @return whether the user has placed the block.
bool promptForPlacement(pvCommandMessage_c* message, const pvString& file, Placement* at)
{
    constexpr auto accepted = static_cast<pvPromptResultType_e>(1);
    pvPromptResultType_e result{};
    if (message != nullptr)
        message->PromptForBlockInsertion(file, true, 1.0, 1.0, 1.0, true, 0.0, &at->x, &at->y, &at->z,
                                         &at->scaleX, &at->scaleY, &at->scaleZ, &at->rotation, &result);
    return result == accepted;
}

} // namespace

void promptAndInsertBlock(pvApplication_c* application, const QString& path, QObject* asker)
{
    pvDocument_c* document = nullptr;
    pvCommandMessage_c* message = nullptr;
    if (application != nullptr) {
        application->GetActiveDocument(&document);
        application->GetCommandMessage(&message);
    }
    if (document == nullptr)
        return;
    // A reference of our own: the drawing may be closed while the prompt is open.
    const pvInterfacePtr<pvSketchManager_c> sketchManager(sketchManagerOf(document));

    const pvString file = toPVString(path);
    const QPointer<QObject> guard(asker);
    Placement at;
    if (!promptForPlacement(message, file, &at) || guard.isNull() || !sketchManager)
        return;
    pvBlockInstance_c* block = nullptr;
    sketchManager->InsertBlock2(file, at.x, at.y, at.z, at.scaleX, at.scaleY, at.scaleZ, at.rotation, &block);
}
