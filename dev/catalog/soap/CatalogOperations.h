#pragma once

#include "dev/catalog/Accounts.h"
#include "dev/catalog/CatalogSite.h"
#include "dev/catalog/ServiceHost.h"
#include "dev/catalog/parts/PartCatalog.h"
#include "dev/catalog/soap/EnvelopeReader.h"
#include "dev/catalog/soap/IssuedValues.h"

#include <pugixml.hpp>

#include <string>
#include <vector>

namespace devcatalog
{

/// What the operations of the wire contract do: one handler each. Any thread may use it.
class CatalogOperations
{
public:
    /// Catalog, site and issued values are borrowed.
    CatalogOperations(ServiceHost host, std::vector<UserAccount> users, const PartCatalog& catalog,
                      CatalogSite& site, IssuedValues& issued);

    /// Carries out an operation of the wire contract.
    /// @param values of a request that keeps to the contract.
    /// @param result the reply's result element, to be filled.
    /// @throws SoapFault when what the request names does not exist.
    void run(const std::string& operation, const RequestValues& values, pugi::xml_node result);

private:
    using Handler = void (CatalogOperations::*)(const RequestValues&, pugi::xml_node);

    void serviceLogin(const RequestValues& values, pugi::xml_node result);
    void generateApiKey(const RequestValues& values, pugi::xml_node result);
    void userLogin(const RequestValues& values, pugi::xml_node result);
    void search(const RequestValues& values, pugi::xml_node result);
    void configurations(const RequestValues& values, pugi::xml_node result);
    void parameters(const RequestValues& values, pugi::xml_node result);
    void drawing(const RequestValues& values, pugi::xml_node result);

    void addSearchItem(pugi::xml_node items, const Part& part) const;
    const Part& requirePart(const RequestValues& values) const;

    ServiceHost m_host;
    std::vector<UserAccount> m_users;
    const PartCatalog& m_catalog;
    CatalogSite& m_site;
    IssuedValues& m_issued;
};

} // namespace devcatalog
