#pragma once

#include "dev/catalog/parts/Part.h"

#include <QString>

#include <cstddef>
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

    /// @param term UTF-8 words; a part matches when each of them occurs in its name, its family, its supplier
    /// or its description, in any order and letter case.
    /// @return the matching parts, owned by the catalog: first those that name and family alone make a match,
    /// then those that need the supplier, then those that need the description, each in catalog order; none
    /// for a term without words.
    std::vector<const Part*> search(std::string_view term) const;

    /// @return the part, owned by the catalog; null when there is none of that supplier and name.
    const Part* find(std::string_view supplier, std::string_view name) const;

private:
    /// What a part is searched by, folded for comparison.
    struct SearchTexts {
        QString title; ///< Name and family.
        QString supplier;
        QString description;

        /// @return the places that a word must be looked for, 0 for the title alone to 2 for all; 3 when it
        /// is nowhere.
        std::size_t depthOf(const QString& word) const;
    };

    std::vector<Part> m_parts;
    std::vector<SearchTexts> m_searchTexts; ///< Of each part.
};

} // namespace devcatalog
