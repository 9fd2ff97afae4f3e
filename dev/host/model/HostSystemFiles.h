#pragma once

#include "dev/host/model/HostObject.h"
#include "dev/host/model/HostSettings.h"

#include <pvInterface/pvSystemFiles_c.h>

namespace devhost
{

/// The paths of the host's own files.
class HostSystemFiles final : public HostObject<pvSystemFiles_c>
{
public:
    HostSystemFiles(std::shared_ptr<HostContext> context, std::shared_ptr<const HostSettings> settings);

    pvResult get_HelpFile(pvString* path) override;

private:
    std::shared_ptr<const HostSettings> m_settings;
};

} // namespace devhost
