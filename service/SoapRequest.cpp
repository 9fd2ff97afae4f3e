#include "service/SoapRequest.h"

#include "common/MessageBoxes.h"
#include "service/ServiceAddress.h"
#include "service/Transfer.h"
#include "service/XmlGuard.h"

#include <QDomDocument>
#include <QFile>
#include <QNetworkRequest>
#include <QUrl>

namespace
{

QNetworkRequest soapHeaders(const ServiceOperation& operation)
{
    QNetworkRequest request(QUrl(operation.endpoint, QUrl::TolerantMode));
    request.setRawHeader("Content-Type", "text/xml; charset=utf-8");
    // Not a number, so the network layer puts the body's true byte count on the wire.
    request.setRawHeader("Content-Length", "length");
    request.setRawHeader("SOAPAction", (ServiceNamespace + QLatin1Char('/') + operation.name).toUtf8());
    return request;
}

QString templatePath(const ServiceOperation& operation)
{
    return QLatin1String(":/3DPH/") + operation.templateName;
}

void fill(const QDomDocument& document, std::initializer_list<SoapValue> values)
{
    for (const SoapValue& value : values)
        document.elementsByTagName(QLatin1String(value.element))
            .item(0)
            .firstChild()
            .setNodeValue(value.text);
}

} // namespace

std::optional<QByteArray> soapRequestBody(const ServiceOperation& operation,
                                          std::initializer_list<SoapValue> values)
{
    QFile file(templatePath(operation));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return std::nullopt;
    QDomDocument document(QLatin1String(operation.documentName));
    document.setContent(file.readAll());
    fill(document, values);
    return document.toByteArray(1);
}

QNetworkReply* sendSoapRequest(const ServiceOperation& operation, std::initializer_list<SoapValue> values,
                               QObject* asker, const char* replySlot)
{
    const QNetworkRequest request = soapHeaders(operation);
    const std::optional<QByteArray> body = soapRequestBody(operation, values);
    if (!body) {
        showCannotOpenBox(templatePath(operation));
        return nullptr;
    }
    if (body->isEmpty())
        return nullptr; // the service could make nothing of it

    return postTransfer(request, *body, MaximumXmlLength, asker, replySlot);
}
