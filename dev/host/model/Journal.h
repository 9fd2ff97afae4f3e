#pragma once

#include <QObject>
#include <QStringList>

namespace devhost
{

/// The SDK calls an add-in made, one readable line each, in order.
///
/// A line is "Subject[id].Method(arguments)", the subject being the SDK class without its "pv" and "_c"; the
/// application's own calls are just "Method(arguments)". Only what the caller passes in is written: texts in
/// quotes, numbers and flags as they are, pointers as "pointer" or "null".
class Journal : public QObject
{
    Q_OBJECT

public:
    /// Appends the line of a call.
    /// @param name the call without subject id and arguments, for example "MenuItem.GetID".
    void add(const QString& name, const QString& line);

    const QStringList& lines() const { return m_lines; }
    /// @return the names of the calls made so far, each once, in order of first use.
    const QStringList& names() const { return m_names; }
    void clear();

signals:
    void added(const QString& line);

private:
    QStringList m_lines;
    QStringList m_names;
};

} // namespace devhost
