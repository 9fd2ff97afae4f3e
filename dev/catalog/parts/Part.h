#pragma once

#include <string>
#include <vector>

namespace devcatalog
{

/// A named value of a configuration, as the service reports it, for example { "Length", "40", "mm" }.
struct Parameter {
    std::string name;
    std::string value;
    std::string unit;
};

/// One size of a part.
struct Configuration {
    std::string name;
    std::vector<Parameter> parameters;
};

/// A supplier's part. Texts are UTF-8. Supplier and name together are unique in the catalog.
struct Part {
    std::string family; ///< Key of the family whose geometry the part has, for example "hex-bolt".
    std::string name;
    std::string supplier;
    std::string description;
    std::vector<Configuration> configurations; ///< One to four.
    std::vector<std::string> unsupportedViews; ///< Wire names of views the service makes no drawing for.
};

} // namespace devcatalog
