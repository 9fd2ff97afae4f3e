#include "dev/catalog/soap/ReplyEnvelope.h"

#include <sstream>

namespace devcatalog
{

ReplyEnvelope::ReplyEnvelope()
{
    pugi::xml_node declaration = m_document.append_child(pugi::node_declaration);
    declaration.append_attribute("version") = "1.0";
    declaration.append_attribute("encoding") = "utf-8";
    pugi::xml_node envelope = m_document.append_child("soap:Envelope");
    envelope.append_attribute("xmlns:soap") = "http://schemas.xmlsoap.org/soap/envelope/";
    envelope.append_attribute("xmlns:xsi") = "http://www.w3.org/2001/XMLSchema-instance";
    envelope.append_attribute("xmlns:xsd") = "http://www.w3.org/2001/XMLSchema";
    m_body = envelope.append_child("soap:Body");
}

pugi::xml_node ReplyEnvelope::addResult(const std::string& operation, const std::string& serviceNamespace)
{
    pugi::xml_node response = m_body.append_child((operation + "Response").c_str());
    response.append_attribute("xmlns") = serviceNamespace.c_str();
    return response.append_child((operation + "Result").c_str());
}

void ReplyEnvelope::addFault(const std::string& code, const std::string& text)
{
    pugi::xml_node fault = m_body.append_child("soap:Fault");
    addText(fault, "faultcode", "soap:" + code);
    addText(fault, "faultstring", text);
    fault.append_child("detail");
}

std::string ReplyEnvelope::text() const
{
    std::ostringstream stream;
    m_document.save(stream, "", pugi::format_raw, pugi::encoding_utf8);
    return stream.str();
}

pugi::xml_node addText(pugi::xml_node parent, const char* name, const std::string& text)
{
    pugi::xml_node child = parent.append_child(name);
    child.text().set(text.c_str());
    return child;
}

} // namespace devcatalog
