#include "dev/host/model/HostSystemFiles.h"

#include "dev/host/model/HostText.h"

namespace devhost
{

HostSystemFiles::HostSystemFiles(std::shared_ptr<HostContext> context,
                                 std::shared_ptr<const HostSettings> settings)
    : HostObject(std::move(context), "SystemFiles"), m_settings(std::move(settings))
{
}

pvResult HostSystemFiles::get_HelpFile(pvString* path)
{
    return call("get_HelpFile").giveValue(path, toPvString(m_settings->helpFile));
}

} // namespace devhost
