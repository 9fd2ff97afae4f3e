#include "service/ServiceAddress.h"

namespace
{

QString address(const char* scheme, const char* path)
{
    return QLatin1String(scheme) + QLatin1String("://" PARTHARBOR_SERVICE_HOST) + QLatin1String(path);
}

} // namespace

const QString AdminServiceUrl = address("https", "/ContentWS/adminws.asmx");
const QString ContentServiceUrl = address("https", "/ContentWS/contentws.asmx");
const QString ExternalServiceUrl = address("https", "/ContentWS/ExternalWS.asmx");
const QString ServiceNamespace = address("http", "/Content");
const QString ServiceBaseUrl = address("https", "/");
