#pragma once

#include <vector>

class pvObject;

/// A snapshot list of host objects that a host call fills. Its pointers are borrowed, and any may be null.
class pvObjectPtrArray
{
public:
    /// @return the number of entries, null ones included.
    int getSize() const { return static_cast<int>(m_objects.size()); }

    /// @param index 0 to getSize() - 1.
    pvObject* operator[](int index) const { return m_objects[static_cast<std::size_t>(index)]; }

    /// Appends @p object, which stays the host's; used by the host to fill the array.
    void add(pvObject* object) { m_objects.push_back(object); }

private:
    std::vector<pvObject*> m_objects;
};
