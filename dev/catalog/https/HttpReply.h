#pragma once

#include <string>

namespace devcatalog
{

struct HttpReply {
    int status = 200; ///< 200, 404 or 500
    std::string contentType;
    std::string body;
};

} // namespace devcatalog
