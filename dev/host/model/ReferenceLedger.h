#pragma once

#include <QStringList>

namespace devhost
{

/// Counts the references that callers hold on the host's objects; the host's own do not appear here.
class ReferenceLedger
{
public:
    void taken() { ++m_outstanding; }
    void givenBack() { --m_outstanding; }
    /// Notes that an object was released more often than it was taken.
    void releasedTooOften(const QString& object) { m_errors.append(object); }

    /// @return the references that were taken and not given back.
    int outstanding() const { return m_outstanding; }
    /// @return the objects that were released without a reference, in order.
    const QStringList& errors() const { return m_errors; }

private:
    int m_outstanding = 0;
    QStringList m_errors;
};

} // namespace devhost
