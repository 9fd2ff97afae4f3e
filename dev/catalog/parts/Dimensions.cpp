#include "dev/catalog/parts/Dimensions.h"

#include <QByteArray>

#include <stdexcept>

namespace devcatalog
{

double Dimensions::operator()(std::string_view name) const
{
    // Unlike the standard library's, this conversion does not depend on the locale.
    const double value = QByteArray::fromStdString(text(name)).toDouble();
    if (!(value > 0) || !std::isfinite(value))
        throw std::invalid_argument("configuration " + m_configuration.name + " has no value for " +
                                    std::string(name));
    return value;
}

std::string Dimensions::text(std::string_view name) const
{
    for (const Parameter& parameter : m_configuration.parameters)
        if (parameter.name == name)
            return parameter.value;
    return {};
}

} // namespace devcatalog
