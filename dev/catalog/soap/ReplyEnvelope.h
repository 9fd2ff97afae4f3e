#pragma once

#include <pugixml.hpp>

#include <string>
#include <string_view>

namespace devcatalog
{

/// A reply in the making: a SOAP 1.1 envelope around an operation's result or a fault.
class ReplyEnvelope
{
public:
    ReplyEnvelope();

    /// Adds the response of an operation.
    /// @return its result element, to be filled; owned by the envelope.
    pugi::xml_node addResult(const std::string& operation, const std::string& serviceNamespace);

    /// @param code "Client" when the request is to blame, "Server" when the service is.
    void addFault(const std::string& code, const std::string& text);

    /// The document in UTF-8, without white space between its elements.
    std::string text() const;

private:
    pugi::xml_document m_document;
    pugi::xml_node m_body;
};

/// Adds a child element that holds a text.
/// @return the child.
pugi::xml_node addText(pugi::xml_node parent, const char* name, const std::string& text);

} // namespace devcatalog
