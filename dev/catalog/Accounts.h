#pragma once

#include <string>

namespace devcatalog
{

/// What a client's ServiceLogin must present.
struct ServiceAccount {
    std::string catalog;
    std::string user;
    std::string password;
    std::string endUser;
};

/// A person who may log in.
struct UserAccount {
    std::string userId;
    std::string password;
};

} // namespace devcatalog
