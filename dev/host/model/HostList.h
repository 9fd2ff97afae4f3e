#pragma once

#include <pvLibrary/pvObject.h>
#include <pvLibrary/pvObjectPtrArray.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace devhost
{

/// The host's objects of one kind, in order. Callers may be given gaps and objects of another class among
/// them, as hosts do; the host itself only sees its own objects.
/// @tparam Object class of the objects, derived from HostObject.
template <class Object>
class HostList
{
public:
    /// @param position index among the entries; past the end appends. @return the object.
    Object& insert(std::size_t position, std::shared_ptr<Object> object)
    {
        Object& inserted = *object;
        const auto index = static_cast<std::ptrdiff_t>(std::min(position, m_entries.size()));
        m_entries.insert(m_entries.begin() + index, Entry{std::move(object), nullptr});
        return inserted;
    }
    Object& add(std::shared_ptr<Object> object) { return insert(m_entries.size(), std::move(object)); }

    /// Adds a gap: callers see a null entry.
    void addNull() { m_entries.push_back(Entry{}); }
    /// Adds an object of another class.
    void addStranger(std::shared_ptr<pvObject> object) { m_entries.push_back({nullptr, std::move(object)}); }

    /// @return how many entries there are, gaps and strangers too.
    std::size_t size() const { return m_entries.size(); }

    /// Drops the objects for which @p predicate(const Object&) is true. @return whether there were any.
    template <class Predicate>
    bool removeIf(Predicate predicate)
    {
        const auto first = std::remove_if(m_entries.begin(), m_entries.end(), [&](const Entry& entry) {
            return entry.object && predicate(*entry.object);
        });
        const bool any = first != m_entries.end();
        m_entries.erase(first, m_entries.end());
        return any;
    }

    /// @return the first object for which @p predicate(const Object&) is true; null when there is none.
    template <class Predicate>
    std::shared_ptr<Object> find(Predicate predicate) const
    {
        for (const Entry& entry : m_entries)
            if (entry.object && predicate(*entry.object))
                return entry.object;
        return nullptr;
    }

    /// Appends every entry, gaps and strangers too.
    void appendTo(pvObjectPtrArray& array) const
    {
        for (const Entry& entry : m_entries)
            array.add(entry.object ? entry.object.get() : entry.stranger.get());
    }

    /// @return the objects in order, without gaps and strangers.
    std::vector<std::shared_ptr<Object>> objects() const
    {
        std::vector<std::shared_ptr<Object>> objects;
        for (const Entry& entry : m_entries)
            if (entry.object)
                objects.push_back(entry.object);
        return objects;
    }

private:
    struct Entry {
        std::shared_ptr<Object> object;
        std::shared_ptr<pvObject> stranger;
    };

    std::vector<Entry> m_entries;
};

} // namespace devhost
