#pragma once

#include "dev/catalog/soap/IssuedValues.h"
#include "dev/catalog/soap/WireContract.h"

#include <map>
#include <string>

namespace devcatalog
{

/// The texts of a request's elements by name.
using RequestValues = std::map<std::string, std::string>;

/// Reads request envelopes strictly: just the document that the wire contract describes, and nothing besides.
class EnvelopeReader
{
public:
    /// @param issued is borrowed.
    EnvelopeReader(std::string serviceNamespace, const IssuedValues& issued);

    /// @return a value for each element of the operation.
    /// @throws SoapFault that names the first deviation.
    RequestValues read(const std::string& envelope, const Operation& operation) const;

private:
    void checkValue(const RequestElement& element, const std::string& value) const;
    void checkIssued(const RequestElement& element, const IssuedTexts& issued,
                     const std::string& value) const;

    std::string m_serviceNamespace;
    const IssuedValues& m_issued;
};

} // namespace devcatalog
