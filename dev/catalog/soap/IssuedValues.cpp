#include "dev/catalog/soap/IssuedValues.h"

#include "dev/catalog/RandomText.h"

namespace devcatalog
{

std::string IssuedTexts::issue()
{
    std::string text = randomHex(32);
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_inOrder.size() == MaximumRemembered) {
        m_texts.erase(m_inOrder.front());
        m_inOrder.pop_front();
    }
    m_inOrder.push_back(text);
    m_texts.insert(text);
    return text;
}

bool IssuedTexts::isIssued(const std::string& text) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_texts.count(text) != 0;
}

} // namespace devcatalog
