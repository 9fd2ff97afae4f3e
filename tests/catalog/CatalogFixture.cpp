#include "tests/catalog/CatalogFixture.h"

#include "dev/catalog/BuiltInOptions.h"

#include <QtTest>

#include <algorithm>

namespace test
{

CatalogFixture::CatalogFixture()
{
    devcatalog::CatalogServerOptions withLog = options();
    withLog.log = [this](const std::string& line) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_log += QByteArray::fromStdString(line) + '\n';
    };
    m_server = std::make_unique<devcatalog::CatalogServer>(withLog);
    m_server->start();
    m_client = std::make_unique<CatalogClient>(m_server->port(),
                                               QString::fromStdString(m_server->caFile().string()));

    const devcatalog::Part& part = m_catalog.parts().front();
    m_values.supplier = QByteArray::fromStdString(part.supplier);
    m_values.model = QByteArray::fromStdString(part.name);
    m_values.configuration = QByteArray::fromStdString(part.configurations.front().name);
    m_values.sessionId = carriedOut(form("ServiceLogin")).toUtf8();
    m_values.apiKey = carriedOut(form("GenerateApiKeyByDescription")).toUtf8();
    m_values.userToken = carriedOut(form("UserLogin")).toUtf8();
}

devcatalog::CatalogServerOptions CatalogFixture::options() const
{
    devcatalog::CatalogServerOptions result = devcatalog::builtInOptions();
    result.serviceHost.clear();
    result.port = 0;
    result.serviceAccount = {"partharbor", "PlotvaneSU", "Service & <Password>", "Plotvane"};
    result.certificateFolder = m_folder.filePath("certificates").toStdString();
    return result;
}

QByteArray CatalogFixture::serviceHost() const
{
    return QByteArray::fromStdString(m_server->serviceHost());
}

RightForm CatalogFixture::form(const QByteArray& operation) const
{
    const QVector<RightForm> forms = rightForms(m_values);
    const auto found = std::find_if(forms.begin(), forms.end(), [&operation](const RightForm& one) {
        return one.operation == operation;
    });
    Q_ASSERT(found != forms.end());
    return *found;
}

HttpAnswer CatalogFixture::post(const RightForm& form) const
{
    return m_client->post(form.request(serviceHost()));
}

QString CatalogFixture::carriedOut(const RightForm& form) const
{
    const HttpAnswer answer = post(form);
    if (answer.status != 200 || answer.contentType != "text/xml; charset=utf-8") {
        QTest::qFail(form.operation + ": " + answer.text("faultstring").toUtf8(), __FILE__, __LINE__);
        return {};
    }
    return answer.text(form.operation + "Result");
}

QByteArray CatalogFixture::log() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_log;
}

} // namespace test
