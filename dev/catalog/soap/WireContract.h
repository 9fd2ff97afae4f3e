#pragma once

#include "dev/catalog/Accounts.h"

#include <string>
#include <vector>

namespace devcatalog
{

/// What an element of a request must hold.
enum class ValueRule {
    Fixed,       ///< just the element's own text
    Secret,      ///< the same, but a fault does not tell it
    Text,        ///< any text but a placeholder that was left in place
    Nothing,     ///< no content at all
    WholeNumber, ///< decimal digits, a minus before them where it is below zero
    View,        ///< one of drawingViews()
    SessionId,   ///< issued by ServiceLogin
    ApiKey,      ///< issued by GenerateApiKeyByDescription
    UserToken,   ///< issued by UserLogin
};

struct RequestElement {
    std::string name;
    ValueRule rule;
    std::string text; ///< of the rules Fixed and Secret
};

/// One operation: its name, the path of its endpoint and its elements in order.
struct Operation {
    std::string name;
    std::string path;
    std::vector<RequestElement> elements;
};

/// Everything that clients may post, in one table.
std::vector<Operation> wireContract(const ServiceAccount& account);

} // namespace devcatalog
