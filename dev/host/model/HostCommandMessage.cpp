#include "dev/host/model/HostCommandMessage.h"

#include "dev/host/model/HostText.h"

#include <QScopedValueRollback>

namespace devhost
{

HostCommandMessage::HostCommandMessage(std::shared_ptr<HostContext> context, HostView& view)
    : HostObject(std::move(context), "CommandMessage"), m_view(view)
{
}

pvResult HostCommandMessage::PromptForBlockInsertion(const pvString& file, bool askScale, double scaleX,
                                                     double scaleY, double scaleZ, bool askRotation,
                                                     double rotation, double* x, double* y, double* z,
                                                     double* outScaleX, double* outScaleY, double* outScaleZ,
                                                     double* outRotation, pvPromptResultType_e* result)
{
    const auto keptDuringTheCall = shared_from_this();
    const SdkCall answer =
        call("PromptForBlockInsertion", file, askScale, scaleX, scaleY, scaleZ, askRotation, rotation);
    if (!answer.takesEffect())
        return answer.result();

    const BlockPlacement preset{0.0, 0.0, 0.0, scaleX, scaleY, scaleZ, rotation};
    const BlockPromptAnswer given = ask({toQString(file), askScale, askRotation, preset});
    answer.giveValue(result, static_cast<pvPromptResultType_e>(given.result));
    if (given.result != BlockPromptAnswer::Accepted)
        return answer.result();

    const BlockPlacement& placement = given.placement;
    answer.giveValue(x, placement.x);
    answer.giveValue(y, placement.y);
    answer.giveValue(z, placement.z);
    answer.giveValue(outScaleX, placement.scaleX);
    answer.giveValue(outScaleY, placement.scaleY);
    answer.giveValue(outScaleZ, placement.scaleZ);
    return answer.giveValue(outRotation, placement.rotation);
}

BlockPromptAnswer HostCommandMessage::ask(const BlockPrompt& prompt)
{
    if (m_prompting)
        return {};
    const QScopedValueRollback<bool> prompting(m_prompting, true);
    return m_view.promptForBlock(prompt);
}

} // namespace devhost
