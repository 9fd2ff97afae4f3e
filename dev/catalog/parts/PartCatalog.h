#pragma once

#include "dev/catalog/parts/Part.h"

#include <QString>

#include <string_view>
#include <vector>

namespace devcatalog
{

/// The parts of the catalog, in a fixed order.
class PartCatalog
{
public:
    PartCatalog();

    const std::vector<Part>& parts() const { return m_parts; }

    /// @param term UTF-8 words; a part matches when each of them occurs in its name, supplier or description,
    /// in any
    ///        order and letter case.
    /// @return the matching parts in catalog order, owned by the catalog; none for a term without words.
    std::vector<const Part*> search(std::string_view term) const;

    /// @return the part, owned by the catalog; null when there is none of that supplier and name.
    const Part* find(std::string_view supplier, std::string_view name) const;

private:
    std::vector<Part> m_parts;
    std::vector<QString>
        m_searchTexts; ///< Of each part: name, supplier and description, folded for comparison.
};

} // namespace devcatalog
