#pragma once

#include <cstddef>

namespace devcatalog
{

/// The rows of a constant table; a view that is valid while the table is.
template <class Row>
class Rows
{
public:
    template <std::size_t count>
    constexpr Rows(const Row (&rows)[count]) : m_begin(rows), m_end(rows + count)
    {
    }

    constexpr const Row* begin() const { return m_begin; }
    constexpr const Row* end() const { return m_end; }
    constexpr std::size_t size() const { return static_cast<std::size_t>(m_end - m_begin); }
    constexpr const Row& operator[](std::size_t index) const { return m_begin[index]; }

private:
    const Row* m_begin;
    const Row* m_end;
};

} // namespace devcatalog
