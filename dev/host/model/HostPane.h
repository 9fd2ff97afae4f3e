#pragma once

#include "dev/host/model/HostObject.h"
#include "dev/host/model/HostView.h"

#include <pvInterface/pvCustomPropertyControl_c.h>

namespace devhost
{

/// A dockable pane; the object stays usable, without any effect, once the pane is destroyed.
class HostPane final : public HostObject<pvCustomPropertyControl_c>
{
public:
    HostPane(std::shared_ptr<HostContext> context, std::unique_ptr<PaneView> view);

    /// @return the pane's native side; null once it is destroyed.
    PaneView* view() const { return m_view.get(); }

    pvResult GetHWND(long* handle) override;
    pvResult get_Visible(bool* visible) override;
    pvResult put_Visible(bool visible) override;
    pvResult Destroy() override;

private:
    std::unique_ptr<PaneView> m_view;
};

} // namespace devhost
