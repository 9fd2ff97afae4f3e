#include "dev/catalog/drawings/families/Dimensions.h"

#include <QByteArray>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace devcatalog
{

const Parameter* Dimensions::find(std::string_view name) const
{
    const auto& parameters = m_configuration.parameters;
    const auto found = std::find_if(parameters.begin(), parameters.end(),
                                    [name](const Parameter& each) { return each.name == name; });
    return found == parameters.end() ? nullptr : &*found;
}

double Dimensions::operator()(std::string_view name) const
{
    const Parameter* parameter = find(name);
    // Unlike the standard library's, this conversion does not depend on the locale.
    const double value = parameter ? QByteArray::fromStdString(parameter->value).toDouble() : 0;
    if (!(value > 0) || !std::isfinite(value))
        throw std::invalid_argument("configuration " + m_configuration.name + " has no value for " +
                                    std::string(name));
    return value;
}

int Dimensions::count(std::string_view name) const
{
    return static_cast<int>(std::lround((*this)(name)));
}

std::string Dimensions::text(std::string_view name) const
{
    const Parameter* parameter = find(name);
    return parameter ? parameter->value : std::string();
}

} // namespace devcatalog
