// Building the body of each request, beside: template bytes, document, fill, bytes.

#include "service/SoapRequest.h"

#include <benchmark/benchmark.h>

#include <QDomDocument>
#include <QFile>

#include <initializer_list>
#include <string>

namespace
{

using Values = std::initializer_list<SoapValue>;

const Values NoValues;
const Values KeyValues{{"sessionId", "0123456789abcdef"}};
const Values LoginValues{
    {"apiKey", "0123456789abcdef"}, {"userId", "user@example.test"}, {"password", "secret"}};
const Values SearchValues{{"apiKey", "0123456789abcdef"}, {"searchTerm", "hex bolt"}, {"pageNumber", "1"}};
const Values InfoValues{
    {"apiKey", "0123456789abcdef"}, {"supplierName", "Supplier"}, {"modelName", "Hex bolt M8 x 40"}};
const Values ParamsValues{{"apiKey", "0123456789abcdef"},
                          {"supplierName", "Supplier"},
                          {"modelName", "Hex bolt M8 x 40"},
                          {"configName", "M8 x 40"}};
const Values DownloadValues{{"apiKey", "0123456789abcdef"},
                            {"userToken", "0123456789abcdef"},
                            {"supplierName", "Supplier"},
                            {"modelName", "Hex bolt M8 x 40"},
                            {"configName", "M8 x 40"},
                            {"version", "R2002"},
                            {"units", "cm"},
                            {"drawingView", "eDrawingView_FRONT"}};

QByteArray templateOf(const ServiceOperation& operation)
{
    QFile file(QLatin1String(":/3DPH/") + operation.templateName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray qtOnly(const QByteArray& envelope, Values values)
{
    QDomDocument document;
    document.setContent(envelope);
    for (const SoapValue& value : values)
        document.elementsByTagName(QLatin1String(value.element))
            .item(0)
            .firstChild()
            .setNodeValue(value.text);
    return document.toByteArray(1);
}

void add(const ServiceOperation& operation, const Values& values)
{
    const std::string name = std::string("request ") + operation.name;
    benchmark::RegisterBenchmark((name + "/ours").c_str(), [&](benchmark::State& state) {
        for (auto _ : state)
            benchmark::DoNotOptimize(soapRequestBody(operation, values));
    });
    benchmark::RegisterBenchmark((name + "/floor").c_str(), [&](benchmark::State& state) {
        const QByteArray envelope = templateOf(operation);
        for (auto _ : state)
            benchmark::DoNotOptimize(qtOnly(envelope, values));
    });
}

} // namespace

void addRequestBenchmarks()
{
    add(ServiceLoginOperation, NoValues);
    add(GenerateApiKeyOperation, KeyValues);
    add(UserLoginOperation, LoginValues);
    add(SearchOperation, SearchValues);
    add(GetConfigInfoOperation, InfoValues);
    add(GetConfigParamsOperation, ParamsValues);
    add(GetDownload2DOperation, DownloadValues);
}
