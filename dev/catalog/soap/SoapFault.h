#pragma once

#include <stdexcept>

namespace devcatalog
{

/// Refuses a request that breaks the wire contract. Its text becomes the faultstring: it says what was wrong
/// and never repeats a password, session id, key or token.
class SoapFault : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace devcatalog
