#pragma once

#include "service/ServiceAddress.h"

/// One operation of the catalog service: what is sent where, and which element of the reply carries the
/// result. The order and the fixed values of a request's elements are its template's.
struct ServiceOperation {
    const char* name;          ///< Operation element, and last part of the SOAPAction.
    const char* templateName;  ///< Envelope template in the bundle, below ":/3DPH/".
    const char* documentName;  ///< Name of the request's document.
    const QString& endpoint;   ///< Address it is posted to.
    const char* resultElement; ///< What the reply is read for: the first element of this name, or all.
};

// The operations that are sent. (ModelDetail.xml, GetModelDetail, is in the bundle and has no sender.)
// clang-format off
//                                                         name                           template            document      endpoint            result element
inline constexpr ServiceOperation ServiceLoginOperation    {"ServiceLogin",                "TokenXMLFile.xml",  "mydocument", ContentServiceUrl,  "ServiceLoginResult"};
inline constexpr ServiceOperation GenerateApiKeyOperation  {"GenerateApiKeyByDescription", "APIKeyXML.xml",     "APIKeyXML",  AdminServiceUrl,    "GenerateApiKeyByDescriptionResult"};
inline constexpr ServiceOperation UserLoginOperation       {"UserLogin",                   "Login.xml",         "mydocument", ExternalServiceUrl, "UserLoginResult"};
inline constexpr ServiceOperation SearchOperation          {"SimpleSearchAcrossCatalogs",  "Searchcatalog.xml", "mydocument", ExternalServiceUrl, "ISearchItem"};
inline constexpr ServiceOperation GetConfigInfoOperation   {"GetConfigInfo",               "ConfigInfo.xml",    "mydocument", ExternalServiceUrl, "IConfiguration"};
inline constexpr ServiceOperation GetConfigParamsOperation {"GetConfigParams",             "ConfigParams.xml",  "mydocument", ExternalServiceUrl, "IInputParameter"};
inline constexpr ServiceOperation GetDownload2DOperation   {"GetDownload2D",               "download.xml",      "mydocument", ExternalServiceUrl, "GetDownload2DResult"};
// clang-format on
