#include "dev/catalog/soap/WireContract.h"

namespace devcatalog
{

std::vector<Operation> wireContract(const ServiceAccount& account)
{
    const std::string admin = "/ContentWS/adminws.asmx";
    const std::string content = "/ContentWS/contentws.asmx";
    const std::string external = "/ContentWS/ExternalWS.asmx";
    using Rule = ValueRule;
    // clang-format off
    return {
        {"ServiceLogin", content, {
            {"catalog",         Rule::Fixed,       account.catalog},
            {"serviceuser",     Rule::Fixed,       account.user},
            {"password",        Rule::Secret,      account.password},
            {"enduser",         Rule::Fixed,       account.endUser},
            {"debug",           Rule::Fixed,       "false"}}},
        {"GenerateApiKeyByDescription", admin, {
            {"sessionId",       Rule::SessionId,   {}},
            {"description",     Rule::Fixed,       "Plotvane session ID1"}}},
        {"UserLogin", external, {
            {"apiKey",          Rule::ApiKey,      {}},
            {"userId",          Rule::Text,        {}},
            {"password",        Rule::Text,        {}}}},
        {"SimpleSearchAcrossCatalogs", external, {
            {"apiKey",          Rule::ApiKey,      {}},
            {"searchTerm",      Rule::Text,        {}},
            {"totalLimit",      Rule::Fixed,       "10000"},
            {"pageSize",        Rule::Fixed,       "5"},
            {"pageNumber",      Rule::WholeNumber, {}},
            {"language",        Rule::Fixed,       "Base"}}},
        {"GetConfigInfo", external, {
            {"apiKey",          Rule::ApiKey,      {}},
            {"supplierName",    Rule::Text,        {}},
            {"modelName",       Rule::Text,        {}},
            {"language",        Rule::Fixed,       "Base"}}},
        {"GetConfigParams", external, {
            {"apiKey",          Rule::ApiKey,      {}},
            {"supplierName",    Rule::Text,        {}},
            {"modelName",       Rule::Text,        {}},
            {"configName",      Rule::Text,        {}},
            {"language",        Rule::Fixed,       "Base"}}},
        {"GetDownload2D", external, {
            {"apiKey",          Rule::ApiKey,      {}},
            {"userToken",       Rule::UserToken,   {}},
            {"supplierName",    Rule::Text,        {}},
            {"modelName",       Rule::Text,        {}},
            {"configName",      Rule::Text,        {}},
            {"formatName",      Rule::Fixed,       "dwg"},
            {"version",         Rule::Fixed,       "R2002"},
            {"units",           Rule::Fixed,       "cm"},
            {"inputParameters", Rule::Nothing,     {}},
            {"drawingView",     Rule::View,        {}},
            {"hiddenEdge",      Rule::Fixed,       "eHiddenEdge_UNSPECIFIED"},
            {"tangentEdge",     Rule::Fixed,       "eTangentEdge_UNSPECIFIED"},
            {"zipOutput",       Rule::Fixed,       "false"},
            {"endUser",         Rule::Fixed,       "Plotvane"}}},
    };
    // clang-format on
}

} // namespace devcatalog
