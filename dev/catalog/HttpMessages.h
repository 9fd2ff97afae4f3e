#pragma once

#include <map>
#include <string>

namespace devcatalog
{

/// A request as it came in. Header names are in lower case.
struct HttpRequest {
    std::string method;
    std::string path; ///< decoded, without query
    std::multimap<std::string, std::string> headers;
    std::string body;
    bool bodyTooLong = false; ///< the body was longer than is kept
};

struct HttpReply {
    int status = 200;
    std::string contentType;
    std::string body;
};

} // namespace devcatalog
