#pragma once

#include "dev/catalog/parts/Part.h"

#include <cmath>
#include <string>
#include <string_view>

namespace devcatalog
{

/// The parameters of a configuration, as numbers and words.
class Dimensions
{
public:
    /// @param configuration must outlive the object.
    explicit Dimensions(const Configuration& configuration) : m_configuration(configuration) {}

    /// @return a parameter's value in its own unit, which is millimetres for lengths.
    /// @throws std::invalid_argument when there is no such parameter, or it is not a positive number.
    double operator()(std::string_view name) const;

    /// @throws std::invalid_argument when there is no such parameter, or it is not a positive number.
    int count(std::string_view name) const { return static_cast<int>(std::lround((*this)(name))); }

    /// @return a parameter's value as text; empty when there is none.
    std::string text(std::string_view name) const;

private:
    const Configuration& m_configuration;
};

} // namespace devcatalog
