#include "devcatalog/ServiceHost.h"

#include <charconv>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace devcatalog
{

namespace
{

constexpr std::string_view alphanumeric = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";

bool consistsOf(std::string_view text, std::string_view further)
{
    const auto belongs = [further](char character) {
        return alphanumeric.find(character) != std::string_view::npos ||
               further.find(character) != std::string_view::npos;
    };
    for (const char character : text) {
        if (!belongs(character)) {
            return false;
        }
    }
    return !text.empty();
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
    const bool bracketed = !whole.empty() && whole.front() == '[';
    const std::size_t nameEnd = bracketed ? whole.find(']') : whole.find(':');
    const std::size_t nameBegin = bracketed ? 1 : 0;
    m_name = whole.substr(nameBegin, nameEnd == std::string_view::npos ? nameEnd : nameEnd - nameBegin);

    std::string_view rest = nameEnd == std::string_view::npos ? "" : whole.substr(nameEnd);
    if (bracketed && !rest.empty()) {
        rest.remove_prefix(1);
    }
    if (!rest.empty()) {
        m_port = rest.front() == ':' ? parsePort(rest.substr(1)) : 0;
    }
    if (!consistsOf(m_name, bracketed ? ":" : ".-") || m_port == 0) {
        throw std::invalid_argument("'" + m_text + "' is no service host; it must read host or host:port.");
    }
}

} // namespace devcatalog
