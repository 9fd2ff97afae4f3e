#pragma once

#include "dev/host/model/HostObject.h"
#include "dev/host/model/HostView.h"

#include <pvInterface/pvCommandMessage_c.h>

namespace devhost
{

/// The prompts of the command line. One prompt can be open at a time; another is refused as cancelled.
class HostCommandMessage final : public HostObject<pvCommandMessage_c>
{
public:
    /// @param view shows the prompts; stays the caller's.
    HostCommandMessage(std::shared_ptr<HostContext> context, HostView& view);

    bool isPrompting() const { return m_prompting; }

    pvResult PromptForBlockInsertion(const pvString& file, bool askScale, double scaleX, double scaleY,
                                     double scaleZ, bool askRotation, double rotation, double* x, double* y,
                                     double* z, double* outScaleX, double* outScaleY, double* outScaleZ,
                                     double* outRotation, pvPromptResultType_e* result) override;

private:
    BlockPromptAnswer ask(const BlockPrompt& prompt);

    HostView& m_view;
    bool m_prompting = false;
};

} // namespace devhost
