#include "dev/catalog/parts/PartCatalog.h"

#include "dev/catalog/parts/PartRanges.h"
#include "dev/catalog/parts/SizeTables.h"

#include <QString>
#include <QStringList>

#include <algorithm>
#include <sstream>
#include <stdexcept>

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

const SizeTable& tableOf(const PartRange& range)
{
    const auto& tables = sizeTables();
    const auto table = std::find_if(tables.begin(), tables.end(),
                                    [&range](const SizeTable& each) { return each.name == range.table; });
    if (table == tables.end())
        throw std::logic_error("no size table " + std::string(range.table));
    return *table;
}

std::size_t indexOf(const SizeTable& table, std::string_view designation, std::size_t otherwise)
{
    if (designation.empty())
        return otherwise;
    const auto size = std::find_if(table.sizes.begin(), table.sizes.end(), [designation](const Size& each) {
        return each.designation == designation;
    });
    if (size == table.sizes.end())
        throw std::logic_error("no size " + std::string(designation) + " in " + std::string(table.name));
    return static_cast<std::size_t>(size - table.sizes.begin());
}

Configuration makeConfiguration(const PartRange& range, const SizeTable& table, const Size& size,
                                const std::string& variant)
{
    const std::vector<std::string> values = words(size.values);
    if (values.size() != table.dimensions.size())
        throw std::logic_error("wrong number of values for size " + std::string(size.designation) + " in " +
                               std::string(table.name));
    Configuration configuration;
    configuration.name =
        replaced(replaced(table.configuration, "{size}", size.designation), "{variant}", variant);
    for (std::size_t i = 0; i < values.size(); ++i)
        configuration.parameters.push_back(
            {std::string(table.dimensions[i].name), values[i], std::string(table.dimensions[i].unit)});
    configuration.parameters.push_back(
        {std::string(table.variant.name), variant, std::string(table.variant.unit)});
    configuration.parameters.insert(configuration.parameters.end(), range.properties.begin(),
                                    range.properties.end());
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
    part.unsupportedViews.assign(range.unsupportedViews.begin(), range.unsupportedViews.end());
    return part;
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
    for (const PartRange& range : partRanges()) {
        const SizeTable& table = tableOf(range);
        const std::size_t last = indexOf(table, range.last, table.sizes.size() - 1);
        for (std::size_t i = indexOf(table, range.first, 0); i <= last; ++i)
            m_parts.push_back(makePart(range, table, table.sizes[i]));
    }
    for (const Part& part : m_parts)
        m_searchTexts.push_back(folded(part.name + '\n' + part.supplier + '\n' + part.description));
}

std::vector<const Part*> PartCatalog::search(std::string_view term) const
{
    const QStringList wanted = folded(term).simplified().split(' ', Qt::SkipEmptyParts);
    std::vector<const Part*> found;
    if (wanted.isEmpty())
        return found;
    for (std::size_t i = 0; i < m_parts.size(); ++i) {
        const QString& text = m_searchTexts[i];
        if (std::all_of(wanted.begin(), wanted.end(),
                        [&text](const QString& word) { return text.contains(word); }))
            found.push_back(&m_parts[i]);
    }
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
