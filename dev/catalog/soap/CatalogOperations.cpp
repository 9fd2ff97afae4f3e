#include "dev/catalog/soap/CatalogOperations.h"

#include "dev/catalog/soap/ReplyEnvelope.h"
#include "dev/catalog/soap/SoapFault.h"
#include "dev/catalog/soap/XmlText.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace devcatalog
{

namespace
{

/// An element of a .NET service's reply, which names its run-time type.
pugi::xml_node addTyped(pugi::xml_node parent, const char* name, const char* type)
{
    pugi::xml_node child = parent.append_child(name);
    child.append_attribute("xsi:type") = type;
    return child;
}

const Configuration& requireConfiguration(const Part& part, const RequestValues& values)
{
    const std::string& name = values.at("configName");
    const auto found =
        std::find_if(part.configurations.begin(), part.configurations.end(),
                     [&name](const Configuration& configuration) { return configuration.name == name; });
    if (found == part.configurations.end())
        throw SoapFault("The model " + quote(part.name) + " has no configuration " + quote(name) + ".");
    return *found;
}

} // namespace

CatalogOperations::CatalogOperations(ServiceHost host, std::vector<UserAccount> users,
                                     const PartCatalog& catalog, CatalogSite& site, IssuedValues& issued)
    : m_host(std::move(host)), m_users(std::move(users)), m_catalog(catalog), m_site(site), m_issued(issued)
{
}

void CatalogOperations::run(const std::string& operation, const RequestValues& values, pugi::xml_node result)
{
    static const std::map<std::string, Handler> handlers{
        {"ServiceLogin", &CatalogOperations::serviceLogin},
        {"GenerateApiKeyByDescription", &CatalogOperations::generateApiKey},
        {"UserLogin", &CatalogOperations::userLogin},
        {"SimpleSearchAcrossCatalogs", &CatalogOperations::search},
        {"GetConfigInfo", &CatalogOperations::configurations},
        {"GetConfigParams", &CatalogOperations::parameters},
        {"GetDownload2D", &CatalogOperations::drawing},
    };
    (this->*handlers.at(operation))(values, result);
}

void CatalogOperations::serviceLogin(const RequestValues& /*values*/, pugi::xml_node result)
{
    result.text().set(m_issued.sessionIds.issue().c_str());
}

void CatalogOperations::generateApiKey(const RequestValues& /*values*/, pugi::xml_node result)
{
    result.text().set(m_issued.apiKeys.issue().c_str());
}

/// Wrong credentials are no fault: the token stays empty.
void CatalogOperations::userLogin(const RequestValues& values, pugi::xml_node result)
{
    const bool isKnown = std::any_of(m_users.begin(), m_users.end(), [&values](const UserAccount& user) {
        return user.userId == values.at("userId") && user.password == values.at("password");
    });
    if (isKnown)
        result.text().set(m_issued.userTokens.issue().c_str());
}

void CatalogOperations::search(const RequestValues& values, pugi::xml_node result)
{
    std::vector<const Part*> hits = m_catalog.search(values.at("searchTerm"));
    hits.resize(std::min<std::size_t>(hits.size(), std::stoul(values.at("totalLimit"))));
    addText(result, "ActualItemCount", std::to_string(hits.size()));

    const auto pageSize = static_cast<std::int64_t>(std::stoi(values.at("pageSize")));
    const std::int64_t page = std::stoi(values.at("pageNumber"));
    const auto count = static_cast<std::int64_t>(hits.size());
    const std::int64_t begin = page > 0 ? std::min(count, (page - 1) * pageSize) : count;
    pugi::xml_node items = result.append_child("Items");
    for (std::int64_t index = begin; index < std::min(count, begin + pageSize); ++index)
        addSearchItem(items, *hits[static_cast<std::size_t>(index)]);
}

/// Clients read the children by their position: 0 the name, with a blank before it that they take off, 1 the
/// catalog's own number, 6 the description, 7 the picture and 16 the supplier.
void CatalogOperations::addSearchItem(pugi::xml_node items, const Part& part) const
{
    const std::string size = std::to_string(CatalogSite::ThumbnailSize);
    const std::pair<const char*, std::string> fields[] = {
        {"DisplayName", " " + part.name},
        {"ItemNumber", std::to_string(&part - m_catalog.parts().data())},
        {"Catalog", "Development"},
        {"Category", part.family},
        {"PartNumber", {}},
        {"Revision", {}},
        {"Description", part.description},
        {"ImagePath", m_site.thumbnailPath(part)},
        {"ImageWidth", size},
        {"ImageHeight", size},
        {"ConfigurationCount", std::to_string(part.configurations.size())},
        {"Language", "Base"},
        {"Units", "cm"},
        {"Has2D", "true"},
        {"Has3D", "false"},
        {"Rank", "0"},
        {"SupplierName", part.supplier},
        {"SupplierSite", {}},
    };
    const pugi::xml_node item = addTyped(items, "ISearchItem", "SearchItem");
    for (const auto& [name, text] : fields)
        addText(item, name, text);
}

const Part& CatalogOperations::requirePart(const RequestValues& values) const
{
    const std::string& supplier = values.at("supplierName");
    const std::string& name = values.at("modelName");
    const Part* const part = m_catalog.find(supplier, name);
    if (!part)
        throw SoapFault("The supplier " + quote(supplier) + " has no model " + quote(name) + ".");
    return *part;
}

void CatalogOperations::configurations(const RequestValues& values, pugi::xml_node result)
{
    for (const Configuration& configuration : requirePart(values).configurations) {
        const pugi::xml_node element = addTyped(result, "IConfiguration", "Configuration");
        addText(element, "Name", configuration.name);
        addText(element, "ParameterCount", std::to_string(configuration.parameters.size()));
    }
}

void CatalogOperations::parameters(const RequestValues& values, pugi::xml_node result)
{
    for (const Parameter& parameter : requireConfiguration(requirePart(values), values).parameters) {
        const pugi::xml_node element = addTyped(result, "IInputParameter", "TextInputParameter");
        const pugi::xml_node description = addTyped(element, "Parameter", "TextParameter");
        addText(description, "Name", parameter.name);
        addText(description, "Unit", parameter.unit);
        const pugi::xml_node value = addTyped(element, "Value", "TextParameterValue");
        addText(value, "Text", parameter.value);
    }
}

/// A view that the part does not have is no fault: the address stays empty.
void CatalogOperations::drawing(const RequestValues& values, pugi::xml_node result)
{
    const Part& part = requirePart(values);
    const Configuration& configuration = requireConfiguration(part, values);
    const std::string path = m_site.addDrawing(part, configuration, values.at("drawingView"));
    if (!path.empty())
        result.text().set(m_host.address("/" + path).c_str());
}

} // namespace devcatalog
