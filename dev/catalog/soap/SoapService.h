#pragma once

#include "dev/catalog/https/HttpReply.h"
#include "dev/catalog/https/HttpRequest.h"
#include "dev/catalog/soap/CatalogOperations.h"
#include "dev/catalog/soap/EnvelopeReader.h"
#include "dev/catalog/soap/IssuedValues.h"
#include "dev/catalog/soap/WireContract.h"

#include <string>
#include <vector>

namespace devcatalog
{

/// How a posted request was answered.
struct SoapReply {
    HttpReply http;
    std::string operation; ///< as SOAPAction names it; empty when that is no operation
    std::string fault;     ///< why the request was refused; empty when it was carried out
};

/// The three endpoints: holds a posted request against the wire contract, carries it out, or refuses it with
/// a SOAP 1.1 fault. Any thread may use it.
class SoapService
{
public:
    /// Catalog and site are borrowed.
    SoapService(const ServiceHost& host, const ServiceAccount& account, std::vector<UserAccount> users,
                const PartCatalog& catalog, CatalogSite& site);

    SoapReply answer(const HttpRequest& request);

private:
    const Operation& findOperation(const HttpRequest& request) const;
    HttpReply carryOut(const Operation& operation, const HttpRequest& request);

    std::string m_namespace;
    std::vector<Operation> m_contract;
    IssuedValues m_issued;
    EnvelopeReader m_reader;
    CatalogOperations m_operations;
};

} // namespace devcatalog
