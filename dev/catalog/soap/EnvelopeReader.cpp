#include "dev/catalog/soap/EnvelopeReader.h"

#include "dev/catalog/drawings/PartDrawing.h"
#include "dev/catalog/soap/SoapFault.h"
#include "dev/catalog/soap/XmlText.h"

#include <pugixml.hpp>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

namespace devcatalog
{

namespace
{

using Attributes = std::vector<std::pair<std::string_view, std::string_view>>;

const Attributes EnvelopeAttributes{
    {"xmlns:xsi", "http://www.w3.org/2001/XMLSchema-instance"},
    {"xmlns:xsd", "http://www.w3.org/2001/XMLSchema"},
    {"xmlns:soap", "http://schemas.xmlsoap.org/soap/envelope/"},
};
const Attributes DeclarationAttributes{{"version", "1.0"}, {"encoding", "utf-8"}};

/// Parses so that nothing of the document is dropped but the white space between elements.
void parse(const std::string& envelope, pugi::xml_document& document)
{
    if (envelope.compare(0, 5, "<?xml") != 0)
        throw SoapFault("The request does not begin with an XML declaration.");
    if (!isXmlText(envelope))
        throw SoapFault("The request holds bytes or references that are no XML text in UTF-8.");
    const unsigned int options = pugi::parse_full | pugi::parse_fragment | pugi::parse_ws_pcdata_single;
    const pugi::xml_parse_result result =
        document.load_buffer(envelope.data(), envelope.size(), options, pugi::encoding_utf8);
    if (!result)
        throw SoapFault("The request is not well-formed XML: " + std::string(result.description()) + ".");
}

std::string describe(pugi::xml_node node)
{
    switch (node.type()) {
    case pugi::node_element:
        return "the element " + quote(node.name());
    case pugi::node_pcdata:
    case pugi::node_cdata:
        return "text";
    case pugi::node_comment:
        return "a comment";
    case pugi::node_doctype:
        return "a document type";
    default:
        return "a processing instruction";
    }
}

/// The attributes may come in any order, each just once.
void requireAttributes(pugi::xml_node node, const Attributes& expected)
{
    const std::string name = quote(node.name());
    for (const auto& [attribute, value] : expected) {
        const pugi::xml_attribute found = node.attribute(std::string(attribute).c_str());
        if (!found)
            throw SoapFault(name + " lacks the attribute " + quote(attribute) + ".");
        if (found.value() != value) {
            throw SoapFault("The attribute " + quote(attribute) + " of " + name + " must be " + quote(value) +
                            ".");
        }
    }
    for (const pugi::xml_attribute attribute : node.attributes()) {
        const auto isExpected = [&](const auto& one) { return one.first == attribute.name(); };
        const bool isRepeated = node.attribute(attribute.name()) != attribute;
        if (isRepeated || std::none_of(expected.begin(), expected.end(), isExpected))
            throw SoapFault(name + " has an attribute too many: " + quote(attribute.name()) + ".");
    }
}

/// The element that must come next in its parent.
/// @param found what comes there; a null node at the end of the parent.
pugi::xml_node requireElement(pugi::xml_node found, const std::string& name, const Attributes& attributes)
{
    if (!found)
        throw SoapFault("The element " + quote(name) + " is missing.");
    if (found.type() != pugi::node_element || found.name() != name)
        throw SoapFault("Where the element " + quote(name) + " belongs, " + describe(found) + " stands.");
    requireAttributes(found, attributes);
    return found;
}

/// @param found what comes after the last element of a place; a null node where there is nothing.
void requireEnd(pugi::xml_node found, const std::string& place)
{
    if (found)
        throw SoapFault("After the last element of " + place + ", " + describe(found) + " stands.");
}

/// Descends to the operation's element.
pugi::xml_node findOperation(const pugi::xml_document& document, const std::string& name,
                             const std::string& serviceNamespace)
{
    const pugi::xml_node declaration = document.first_child();
    if (declaration.type() != pugi::node_declaration)
        throw SoapFault("The request does not begin with an XML declaration.");
    requireAttributes(declaration, DeclarationAttributes);
    const pugi::xml_node envelope =
        requireElement(declaration.next_sibling(), "soap:Envelope", EnvelopeAttributes);
    requireEnd(envelope.next_sibling(), "the document");
    const pugi::xml_node body = requireElement(envelope.first_child(), "soap:Body", {});
    requireEnd(body.next_sibling(), "'soap:Envelope'");
    const pugi::xml_node operation = requireElement(body.first_child(), name, {{"xmlns", serviceNamespace}});
    requireEnd(operation.next_sibling(), "'soap:Body'");
    return operation;
}

std::string readText(pugi::xml_node element)
{
    const pugi::xml_node content = element.first_child();
    if (!content)
        return {};
    if (content.type() != pugi::node_pcdata || content.next_sibling())
        throw SoapFault("The element " + quote(element.name()) + " must hold plain text and nothing else.");
    return content.value();
}

bool isView(std::string_view text)
{
    const std::vector<std::string_view> views = drawingViews();
    return std::find(views.begin(), views.end(), text) != views.end();
}

bool isWholeNumber(std::string_view text)
{
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

void require(bool isMet, const RequestElement& element, const std::string& rule)
{
    if (!isMet)
        throw SoapFault("The element " + quote(element.name) + " must hold " + rule + ".");
}

} // namespace

EnvelopeReader::EnvelopeReader(std::string serviceNamespace, const IssuedValues& issued)
    : m_serviceNamespace(std::move(serviceNamespace)), m_issued(issued)
{
}

RequestValues EnvelopeReader::read(const std::string& envelope, const Operation& operation) const
{
    pugi::xml_document document;
    parse(envelope, document);
    const pugi::xml_node parent = findOperation(document, operation.name, m_serviceNamespace);

    RequestValues values;
    pugi::xml_node next = parent.first_child();
    for (const RequestElement& element : operation.elements) {
        const pugi::xml_node found = requireElement(next, element.name, {});
        values[element.name] = readText(found);
        next = found.next_sibling();
    }
    requireEnd(next, quote(operation.name));
    for (const RequestElement& element : operation.elements)
        checkValue(element, values[element.name]);
    return values;
}

void EnvelopeReader::checkValue(const RequestElement& element, const std::string& value) const
{
    switch (element.rule) {
    case ValueRule::Fixed:
        require(value == element.text, element, quote(element.text));
        break;
    case ValueRule::Secret:
        require(value == element.text, element, "the service account's value");
        break;
    case ValueRule::Text:
        require(value != "string" && value != "int", element, "a value in place of its placeholder");
        break;
    case ValueRule::Nothing:
        require(value.empty(), element, "nothing");
        break;
    case ValueRule::WholeNumber:
        require(isWholeNumber(value), element, "a whole number");
        break;
    case ValueRule::View:
        require(isView(value), element, "the name of a drawing view");
        break;
    case ValueRule::SessionId:
        checkIssued(element, m_issued.sessionIds, value);
        break;
    case ValueRule::ApiKey:
        checkIssued(element, m_issued.apiKeys, value);
        break;
    case ValueRule::UserToken:
        checkIssued(element, m_issued.userTokens, value);
        break;
    }
}

void EnvelopeReader::checkIssued(const RequestElement& element, const IssuedTexts& issued,
                                 const std::string& value) const
{
    require(issued.isIssued(value), element, "a value that this service has issued");
}

} // namespace devcatalog
