#pragma once

#include <utility>

/// Owning handle over a host interface object.
///
/// Adopting or receiving an object takes a reference of the handle's own; ending, or taking another object,
/// gives back just that one. The borrowed pointer it was made from stays the host's.
/// @tparam T a host interface class, derived from pvObject.
template <class T>
class pvInterfacePtr
{
public:
    pvInterfacePtr() = default;
    pvInterfacePtr(T* object) : m_object(object) { take(); }
    pvInterfacePtr(const pvInterfacePtr& other) : m_object(other.m_object) { take(); }
    ~pvInterfacePtr() { drop(); }

    pvInterfacePtr& operator=(pvInterfacePtr other)
    {
        std::swap(m_object, other.m_object);
        return *this;
    }

    /// @return the object, borrowed; null when there is none.
    T* get() const { return m_object; }
    T* operator->() const { return m_object; }
    explicit operator bool() const { return m_object != nullptr; }

private:
    void take()
    {
        if (m_object != nullptr)
            m_object->AddRef();
    }

    void drop()
    {
        if (m_object != nullptr)
            m_object->Release();
    }

    T* m_object = nullptr;
};
