#pragma once

#include <cstddef>
#include <deque>
#include <mutex>
#include <string>
#include <unordered_set>

namespace devcatalog
{

/// Random texts of one kind that the service has handed out, such as its API keys. Any thread may use it.
class IssuedTexts
{
public:
    /// Makes a text that nobody can guess and remembers it.
    std::string issue();

    bool isIssued(const std::string& text) const;

private:
    static constexpr std::size_t MaximumRemembered = 4096; ///< then the oldest is forgotten

    mutable std::mutex m_mutex;
    std::deque<std::string> m_inOrder;
    std::unordered_set<std::string> m_texts;
};

/// What clients must present and only the service can have given them.
struct IssuedValues {
    IssuedTexts sessionIds;
    IssuedTexts apiKeys;
    IssuedTexts userTokens;
};

} // namespace devcatalog
