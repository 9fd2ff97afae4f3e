#include "dev/catalog/parts/PartCatalog.h"

#include "dev/catalog/parts/PartRanges.h"
#include "dev/catalog/parts/SizeTables.h"

#include <QString>
#include <QStringList>

#include <algorithm>
#include <array>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace devcatalog
{

namespace
{

std::vector<std::string> words(std::string_view text)
{
    std::istringstream stream{std::string(text)};
    std::vector<std::string> result;
    for (std::string word; stream >> word;)
        result.push_back(word);
    return result;
}

std::string replaced(std::string_view text, std::string_view placeholder, std::string_view value)
{
    std::string result(text);
    for (std::size_t at = result.find(placeholder); at != std::string::npos;
         at = result.find(placeholder, at + value.size()))
        result.replace(at, placeholder.size(), value);
    return result;
}

template <class Row>
const Row& rowNamed(std::string_view name, const Rows<Row>& rows, std::string_view Row::*key)
{
    const auto* const row =
        std::find_if(rows.begin(), rows.end(), [=](const Row& each) { return each.*key == name; });
    if (row == rows.end())
        throw std::logic_error("no row " + std::string(name) + " in the catalog's tables");
    return *row;
}

Configuration makeConfiguration(const PartRange& range, const SizeTable& table, const Size& size,
                                const std::string& variant)
{
    Configuration configuration;
    configuration.name =
        replaced(replaced(table.configuration, "{size}", size.designation), "{variant}", variant);
    const auto add = [&configuration](std::string_view name, std::string_view value, std::string_view unit) {
        configuration.parameters.push_back({std::string(name), std::string(value), std::string(unit)});
    };
    const std::vector<std::string> values = words(size.values);
    for (std::size_t i = 0; i < values.size(); ++i)
        add(table.dimensions[i].name, values[i], table.dimensions[i].unit);
    add(table.variant.name, variant, table.variant.unit);
    for (const Property& property : range.properties)
        if (!property.name.empty())
            add(property.name, property.value, property.unit);
    return configuration;
}

Part makePart(const PartRange& range, const SizeTable& table, const Size& size)
{
    Part part;
    part.family = table.family;
    part.name = replaced(range.name, "{size}", size.designation);
    part.supplier = range.supplier;
    part.description = replaced(range.description, "{size}", size.designation);
    for (const std::string& variant : words(size.variants))
        part.configurations.push_back(makeConfiguration(range, table, size, variant));
    for (const std::string_view view : range.unsupportedViews)
        if (!view.empty())
            part.unsupportedViews.emplace_back(view);
    return part;
}

std::vector<Part> partsOf(const PartRange& range)
{
    const SizeTable& table = rowNamed(range.table, sizeTables(), &SizeTable::name);
    const Size* first = table.sizes.begin();
    const Size* last = table.sizes.end() - 1;
    if (!range.sizes.first.empty())
        first = &rowNamed(range.sizes.first, table.sizes, &Size::designation);
    if (!range.sizes.last.empty())
        last = &rowNamed(range.sizes.last, table.sizes, &Size::designation);
    std::vector<Part> parts;
    for (const Size* size = first; size <= last; ++size)
        parts.push_back(makePart(range, table, *size));
    return parts;
}

/// Letters that differ only in case, width or the way they are composed compare equal, also where a capital
/// is written as two letters.
QString folded(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()))
        .normalized(QString::NormalizationForm_KC)
        .toUpper()
        .toCaseFolded();
}

} // namespace

PartCatalog::PartCatalog()
{
    for (const PartRange& range : partRanges())
        for (Part& part : partsOf(range))
            m_parts.push_back(std::move(part));
    for (const Part& part : m_parts)
        m_searchTexts.push_back(
            {folded(part.name + '\n' + part.family), folded(part.supplier), folded(part.description)});
}

std::size_t PartCatalog::SearchTexts::depthOf(const QString& word) const
{
    std::size_t depth = 0;
    for (const QString* text : {&title, &supplier, &description}) {
        if (text->contains(word))
            break;
        ++depth;
    }
    return depth;
}

std::vector<const Part*> PartCatalog::search(std::string_view term) const
{
    constexpr std::size_t depths = 3;
    std::array<std::vector<const Part*>, depths> hits;
    const QStringList words = folded(term).simplified().split(' ', Qt::SkipEmptyParts);
    for (std::size_t i = 0; i < m_parts.size() && !words.isEmpty(); ++i) {
        std::size_t deepest = 0;
        for (const QString& word : words)
            deepest = std::max(deepest, m_searchTexts[i].depthOf(word));
        if (deepest < depths)
            hits[deepest].push_back(&m_parts[i]);
    }
    std::vector<const Part*> found;
    for (const std::vector<const Part*>& each : hits)
        found.insert(found.end(), each.begin(), each.end());
    return found;
}

const Part* PartCatalog::find(std::string_view supplier, std::string_view name) const
{
    const auto part = std::find_if(m_parts.begin(), m_parts.end(), [supplier, name](const Part& each) {
        return each.supplier == supplier && each.name == name;
    });
    return part == m_parts.end() ? nullptr : &*part;
}

} // namespace devcatalog
