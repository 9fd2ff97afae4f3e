#include "dev/catalog/BuiltInOptions.h"

#include "dev/catalog/ServiceHost.h"

namespace devcatalog
{

UserAccount demoAccount()
{
    return {"demo@partharbor.example", "demo"};
}

CatalogServerOptions builtInOptions()
{
    CatalogServerOptions options;
    options.serviceHost = PARTHARBOR_SERVICE_HOST;
    options.port = ServiceHost(options.serviceHost).port();
    options.serviceAccount = {PARTHARBOR_SERVICE_CATALOG, PARTHARBOR_SERVICE_USER,
                              PARTHARBOR_SERVICE_PASSWORD, PARTHARBOR_SERVICE_ENDUSER};
    options.users = {demoAccount()};
    return options;
}

} // namespace devcatalog
