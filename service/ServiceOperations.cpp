#include "service/ServiceOperations.h"

#include "service/ServiceAddress.h"

// clang-format off
//                                                name                           template            document      endpoint            result element
const ServiceOperation ServiceLoginOperation    {"ServiceLogin",                "TokenXMLFile.xml",  "mydocument", ContentServiceUrl,  "ServiceLoginResult"};
const ServiceOperation GenerateApiKeyOperation  {"GenerateApiKeyByDescription", "APIKeyXML.xml",     "APIKeyXML",  AdminServiceUrl,    "GenerateApiKeyByDescriptionResult"};
const ServiceOperation UserLoginOperation       {"UserLogin",                   "Login.xml",         "mydocument", ExternalServiceUrl, "UserLoginResult"};
const ServiceOperation SearchOperation          {"SimpleSearchAcrossCatalogs",  "Searchcatalog.xml", "mydocument", ExternalServiceUrl, "ISearchItem"};
const ServiceOperation GetConfigInfoOperation   {"GetConfigInfo",               "ConfigInfo.xml",    "mydocument", ExternalServiceUrl, "IConfiguration"};
const ServiceOperation GetConfigParamsOperation {"GetConfigParams",             "ConfigParams.xml",  "mydocument", ExternalServiceUrl, "IInputParameter"};
const ServiceOperation GetDownload2DOperation   {"GetDownload2D",               "download.xml",      "mydocument", ExternalServiceUrl, "GetDownload2DResult"};
// clang-format on
