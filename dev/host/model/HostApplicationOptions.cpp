#include "dev/host/model/HostApplicationOptions.h"

namespace devhost
{

HostApplicationOptions::HostApplicationOptions(std::shared_ptr<HostContext> context,
                                               std::shared_ptr<const HostSettings> settings)
    : HostObject(std::move(context), "ApplicationOptions"), m_settings(std::move(settings))
{
}

pvResult HostApplicationOptions::GetApplicationOptionInt16(pvApplicationOptionInt16_e option, long* value,
                                                           pvGetApplicationOptionResult_e* result)
{
    const SdkCall answer = call("GetApplicationOptionInt16", option);
    const bool known = option == ColourTheme;
    answer.giveValue(result, static_cast<pvGetApplicationOptionResult_e>(known ? 0 : 1));
    if (!known)
        return answer.result(false);
    return answer.giveLow32(value, m_settings->darkTheme ? m_settings->darkThemeValue : 0U);
}

} // namespace devhost
