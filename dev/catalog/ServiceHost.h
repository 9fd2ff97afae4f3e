#pragma once

#include <string>

namespace devcatalog
{

/// The catalog's host as it stands in addresses: a name or number, with a port where that is not 443.
class ServiceHost
{
public:
    /// @param text "host" or "host:port"; an IPv6 number stands in brackets.
    /// @throws std::invalid_argument when the text is no such host.
    explicit ServiceHost(std::string text);

    const std::string& text() const { return m_text; }

    /// Without port and brackets, as a certificate carries it.
    const std::string& name() const { return m_name; }

    /// 443 when the text has none.
    int port() const { return m_port; }

    /// The namespace of every operation; its scheme is http although the service speaks https.
    std::string xmlNamespace() const { return "http://" + m_text + "/Content"; }

    /// @param path begins with "/".
    std::string address(const std::string& path) const { return "https://" + m_text + path; }

private:
    std::string m_text;
    std::string m_name;
    int m_port = 443;
};

} // namespace devcatalog
