#include "dev/catalog/ServiceHost.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace devcatalog
{

namespace
{

constexpr std::string_view Alphanumeric = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";

bool consistsOf(std::string_view text, std::string_view further)
{
    const auto belongs = [further](char character) {
        return Alphanumeric.find(character) != std::string_view::npos ||
               further.find(character) != std::string_view::npos;
    };
    return !text.empty() && std::all_of(text.begin(), text.end(), belongs);
}

/// @return 0 when the text is no port.
int parsePort(std::string_view text)
{
    int port = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), port);
    const bool isWhole = error == std::errc() && end == text.data() + text.size();
    return isWhole && port > 0 && port <= 65535 ? port : 0;
}

} // namespace

ServiceHost::ServiceHost(std::string text) : m_text(std::move(text))
{
    const std::string_view whole = m_text;
    const bool isBracketed = !whole.empty() && whole.front() == '[';
    const std::size_t nameEnd = std::min(whole.find(isBracketed ? ']' : ':'), whole.size());
    m_name = whole.substr(0, nameEnd);
    std::string_view rest = whole.substr(nameEnd);
    if (isBracketed) {
        m_name.erase(0, 1);
        rest.remove_prefix(std::min<std::size_t>(1, rest.size()));
    }
    const bool isClosed = !isBracketed || nameEnd < whole.size();
    if (!rest.empty())
        m_port = rest.front() == ':' ? parsePort(rest.substr(1)) : 0;
    if (!isClosed || !consistsOf(m_name, isBracketed ? ":" : ".-") || m_port == 0)
        throw std::invalid_argument("'" + m_text + "' is no service host; it must read host or host:port.");
}

} // namespace devcatalog
