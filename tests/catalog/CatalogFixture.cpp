#include "tests/catalog/CatalogFixture.h"

#include "dev/catalog/BuiltInOptions.h"

#include <QFile>
#include <QTest>

#include <algorithm>

namespace test
{

namespace
{

struct Template {
    const char* operation;
    const char* file;
    const char* endpoint;
};

constexpr Template Templates[] = {
    {"ServiceLogin", "TokenXMLFile", "contentws"},
    {"GenerateApiKeyByDescription", "APIKeyXML", "adminws"},
    {"UserLogin", "Login", "ExternalWS"},
    {"SimpleSearchAcrossCatalogs", "Searchcatalog", "ExternalWS"},
    {"GetConfigInfo", "ConfigInfo", "ExternalWS"},
    {"GetConfigParams", "ConfigParams", "ExternalWS"},
    {"GetDownload2D", "download", "ExternalWS"},
};

QByteArray bytes(const std::string& text)
{
    return QByteArray::fromStdString(text);
}

} // namespace

CatalogFixture::CatalogFixture()
{
    devcatalog::CatalogServerOptions withLog = options();
    withLog.log = [this](const std::string& line) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_log += bytes(line) + '\n';
    };
    m_server = std::make_unique<devcatalog::CatalogServer>(withLog);
    m_server->start();
    m_client = std::make_unique<CatalogClient>(m_server->port(),
                                               QString::fromStdString(m_server->caFile().string()));

    const devcatalog::Part& part = m_catalog.parts().front();
    m_values = {{"searchTerm", bytes(part.name)},
                {"pageNumber", "1"},
                {"supplierName", bytes(part.supplier)},
                {"modelName", bytes(part.name)},
                {"configName", bytes(part.configurations.front().name)},
                {"version", "R2002"},
                {"units", "cm"},
                {"inputParameters", ""},
                {"drawingView", "eDrawingView_FRONT"}};
    m_values["sessionId"] = carriedOut(request("ServiceLogin")).toUtf8();
    m_values["apiKey"] = carriedOut(request("GenerateApiKeyByDescription")).toUtf8();
    m_values["userToken"] = carriedOut(request("UserLogin")).toUtf8();
}

devcatalog::CatalogServerOptions CatalogFixture::options() const
{
    devcatalog::CatalogServerOptions result = devcatalog::builtInOptions();
    result.serviceHost.clear();
    result.port = 0;
    result.serviceAccount.password = "Service & <Password>";
    result.certificateFolder = m_folder.filePath("certificates").toStdString();
    return result;
}

QVector<QByteArray> CatalogFixture::operations()
{
    QVector<QByteArray> names;
    for (const Template& each : Templates)
        names.append(each.operation);
    return names;
}

SoapRequest CatalogFixture::request(const QByteArray& operation) const
{
    const Template& found = *std::find_if(std::begin(Templates), std::end(Templates),
                                          [&](const Template& each) { return each.operation == operation; });
    QFile file(QString(REQUEST_TEMPLATES "/%1.xml.in").arg(found.file));
    if (!file.open(QIODevice::ReadOnly))
        qCritical("There is no %s", qPrintable(file.fileName()));
    const QByteArray host = bytes(m_server->serviceHost());
    SoapRequest request{operation,
                        QByteArray("/ContentWS/") + found.endpoint + ".asmx",
                        {{"Content-Type", "text/xml; charset=utf-8"},
                         {"SOAPAction", "http://" + host + "/Content/" + operation}},
                        file.readAll().replace("@PARTHARBOR_SERVICE_HOST@", host)};
    QHash<QByteArray, QByteArray> values = m_values;
    if (operation == "ServiceLogin") {
        const devcatalog::ServiceAccount account = options().serviceAccount;
        values = {{"catalog", bytes(account.catalog)},
                  {"serviceuser", bytes(account.user)},
                  {"password", bytes(account.password)},
                  {"enduser", bytes(account.endUser)}};
    } else if (operation == "UserLogin") {
        values["userId"] = bytes(devcatalog::demoAccount().userId);
        values["password"] = bytes(devcatalog::demoAccount().password);
    }
    for (const QByteArray& element : request.elements())
        if (values.contains(element))
            request = request.with(element, values.value(element));
    return request;
}

QString CatalogFixture::carriedOut(const SoapRequest& request) const
{
    const HttpAnswer answer = post(request);
    if (answer.status != 200 || answer.contentType != "text/xml; charset=utf-8") {
        QTest::qFail(request.operation + ": " + answer.text("faultstring").toUtf8(), __FILE__, __LINE__);
        return {};
    }
    return answer.text(request.operation + "Result");
}

QByteArray CatalogFixture::log() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_log;
}

} // namespace test
