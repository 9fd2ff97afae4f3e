#include "tests/catalog/ValidRequests.h"

#include <QString>

#include <algorithm>

namespace test
{

QByteArray& RightForm::value(const QByteArray& element)
{
    const auto found = std::find_if(elements.begin(), elements.end(),
                                    [&element](const auto& one) { return one.first == element; });
    Q_ASSERT(found != elements.end());
    return found->second;
}

SoapRequest RightForm::request(const QByteArray& serviceHost) const
{
    const QByteArray serviceNamespace = "http://" + serviceHost + "/Content";
    SoapRequest request{
        path,
        {{"Content-Type", "text/xml; charset=utf-8"}, {"SOAPAction", serviceNamespace + "/" + operation}},
        {}};
    request.body = "<?xml version='1.0' encoding='utf-8'?>\n"
                   "<soap:Envelope xmlns:soap=\"http://schemas.xmlsoap.org/soap/envelope/\""
                   " xmlns:xsd=\"http://www.w3.org/2001/XMLSchema\""
                   " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\">\n"
                   " <soap:Body>\n"
                   "  <" +
                   operation + " xmlns=\"" + serviceNamespace + "\">\n";
    for (const auto& [name, text] : elements)
        request.body += elementLine(name, text);
    request.body += "  </" + operation +
                    ">\n"
                    " </soap:Body>\n"
                    "</soap:Envelope>\n";
    return request;
}

QByteArray elementLine(const QByteArray& name, const QByteArray& value)
{
    return "   <" + name + ">" + QString::fromUtf8(value).toHtmlEscaped().toUtf8() + "</" + name + ">\n";
}

QVector<RightForm> rightForms(const ClientValues& values)
{
    const QByteArray external = "/ContentWS/ExternalWS.asmx";
    return {
        {"ServiceLogin",
         "/ContentWS/contentws.asmx",
         {{"catalog", "partharbor"},
          {"serviceuser", "PlotvaneSU"},
          {"password", "Service & <Password>"},
          {"enduser", "Plotvane"},
          {"debug", "false"}}},
        {"GenerateApiKeyByDescription",
         "/ContentWS/adminws.asmx",
         {{"sessionId", values.sessionId}, {"description", "Plotvane session ID1"}}},
        {"UserLogin",
         external,
         {{"apiKey", values.apiKey}, {"userId", "demo@partharbor.example"}, {"password", "demo"}}},
        {"SimpleSearchAcrossCatalogs",
         external,
         {{"apiKey", values.apiKey},
          {"searchTerm", values.model},
          {"totalLimit", "10000"},
          {"pageSize", "5"},
          {"pageNumber", "1"},
          {"language", "Base"}}},
        {"GetConfigInfo",
         external,
         {{"apiKey", values.apiKey},
          {"supplierName", values.supplier},
          {"modelName", values.model},
          {"language", "Base"}}},
        {"GetConfigParams",
         external,
         {{"apiKey", values.apiKey},
          {"supplierName", values.supplier},
          {"modelName", values.model},
          {"configName", values.configuration},
          {"language", "Base"}}},
        {"GetDownload2D",
         external,
         {{"apiKey", values.apiKey},
          {"userToken", values.userToken},
          {"supplierName", values.supplier},
          {"modelName", values.model},
          {"configName", values.configuration},
          {"formatName", "dwg"},
          {"version", "R2002"},
          {"units", "cm"},
          {"inputParameters", ""},
          {"drawingView", "eDrawingView_FRONT"},
          {"hiddenEdge", "eHiddenEdge_UNSPECIFIED"},
          {"tangentEdge", "eTangentEdge_UNSPECIFIED"},
          {"zipOutput", "false"},
          {"endUser", "Plotvane"}}},
    };
}

} // namespace test
