#include "dev/catalog/soap/SoapService.h"

#include "dev/catalog/soap/ReplyEnvelope.h"
#include "dev/catalog/soap/SoapFault.h"
#include "dev/catalog/soap/XmlText.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace devcatalog
{

namespace
{

const std::string ContentType = "text/xml; charset=utf-8";

/// @return the header's value.
/// @throws SoapFault unless it came just once.
std::string requireHeader(const HttpRequest& request, const std::string& name)
{
    const QVector<QByteArray> values = request.headerValues(QByteArray::fromStdString(name));
    if (values.isEmpty())
        throw SoapFault("The header " + quote(name) + " is missing.");
    if (values.size() > 1)
        throw SoapFault("The header " + quote(name) + " came more than once.");
    return values.first().toStdString();
}

void requireHeaders(const HttpRequest& request)
{
    constexpr int maximumBody = 524288;
    if (requireHeader(request, "content-type") != ContentType)
        throw SoapFault("The header 'content-type' must be " + quote(ContentType) + ".");
    requireHeader(request, "content-length");
    if (!request.header("content-encoding").isNull())
        throw SoapFault("The request must not be encoded.");
    if (request.body.size() > maximumBody)
        throw SoapFault("The request is too long.");
}

SoapReply fault(const std::string& code, const std::string& text)
{
    ReplyEnvelope envelope;
    envelope.addFault(code, text);
    return {{500, ContentType, envelope.text()}, {}, text};
}

} // namespace

SoapService::SoapService(const ServiceHost& host, const ServiceAccount& account,
                         std::vector<UserAccount> users, const PartCatalog& catalog, CatalogSite& site)
    : m_namespace(host.xmlNamespace()),
      m_contract(wireContract(account)),
      m_reader(m_namespace, m_issued),
      m_operations(host, std::move(users), catalog, site, m_issued)
{
}

SoapReply SoapService::answer(const HttpRequest& request)
{
    std::string operationName;
    SoapReply reply;
    try {
        const Operation& operation = findOperation(request);
        operationName = operation.name;
        requireHeaders(request);
        reply.http = carryOut(operation, request);
    } catch (const SoapFault& refusal) {
        reply = fault("Client", refusal.what());
    } catch (const std::exception& error) {
        reply = fault("Server", error.what());
    }
    reply.operation = operationName;
    return reply;
}

/// Endpoint and SOAPAction together name the operation.
const Operation& SoapService::findOperation(const HttpRequest& request) const
{
    const std::string path = request.path().toStdString();
    const auto isServed = [&path](const Operation& one) { return one.path == path; };
    if (std::none_of(m_contract.begin(), m_contract.end(), isServed))
        throw SoapFault("There is no endpoint " + quote(path) + ".");
    const std::string action = requireHeader(request, "soapaction");
    const auto found = std::find_if(m_contract.begin(), m_contract.end(), [&](const Operation& one) {
        return action == m_namespace + "/" + one.name;
    });
    if (found == m_contract.end()) {
        throw SoapFault("SOAPAction must be " + quote(m_namespace + "/") +
                        " with the name of an operation, without quotation marks; it is " + quote(action) +
                        ".");
    }
    if (found->path != path) {
        throw SoapFault("The operation " + quote(found->name) + " belongs to the endpoint " +
                        quote(found->path) + ", not to " + quote(path) + ".");
    }
    return *found;
}

HttpReply SoapService::carryOut(const Operation& operation, const HttpRequest& request)
{
    const RequestValues values = m_reader.read(request.body.toStdString(), operation);
    ReplyEnvelope envelope;
    m_operations.run(operation.name, values, envelope.addResult(operation.name, m_namespace));
    return {200, ContentType, envelope.text()};
}

} // namespace devcatalog
