#include "dev/host/model/HostPane.h"

namespace devhost
{

HostPane::HostPane(std::shared_ptr<HostContext> context, std::unique_ptr<PaneView> view)
    : HostObject(std::move(context), "CustomPropertyControl"), m_view(std::move(view))
{
}

pvResult HostPane::GetHWND(long* handle)
{
    const SdkCall answer = call("GetHWND");
    if (!m_view)
        return answer.result(false);
    return answer.giveLow32(handle, static_cast<quint32>(m_view->windowHandle()));
}

pvResult HostPane::get_Visible(bool* visible)
{
    return call("get_Visible").giveValue(visible, m_view && m_view->isVisible());
}

pvResult HostPane::put_Visible(bool visible)
{
    const SdkCall answer = call("put_Visible", visible);
    if (m_view && answer.takesEffect())
        m_view->setVisible(visible);
    return answer.result(m_view != nullptr);
}

pvResult HostPane::Destroy()
{
    const SdkCall answer = call("Destroy");
    if (answer.takesEffect())
        m_view.reset();
    return answer.result();
}

} // namespace devhost
