#include "dev/host/model/Journal.h"

namespace devhost
{

void Journal::add(const QString& name, const QString& line)
{
    m_lines.append(line);
    if (!m_names.contains(name))
        m_names.append(name);
    emit added(line);
}

void Journal::clear()
{
    m_lines.clear();
    m_names.clear();
}

} // namespace devhost
