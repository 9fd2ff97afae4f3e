#pragma once

#include "dev/host/model/HostObject.h"
#include "dev/host/model/HostSettings.h"

#include <pvInterface/pvApplicationOptions_c.h>

namespace devhost
{

/// The application's options: of the 16-bit ones only the colour theme.
class HostApplicationOptions final : public HostObject<pvApplicationOptions_c>
{
public:
    /// Number of the colour theme option: 0 = light, 1 = dark.
    static constexpr int ColourTheme = 48;

    HostApplicationOptions(std::shared_ptr<HostContext> context,
                           std::shared_ptr<const HostSettings> settings);

    pvResult GetApplicationOptionInt16(pvApplicationOptionInt16_e option, long* value,
                                       pvGetApplicationOptionResult_e* result) override;

private:
    std::shared_ptr<const HostSettings> m_settings;
};

} // namespace devhost
