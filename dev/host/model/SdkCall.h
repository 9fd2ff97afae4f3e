#pragma once

#include "dev/host/model/HostContext.h"

#include <pvLibrary/pvObjectPtrArray.h>
#include <pvLibrary/pvString.h>

#include <QStringList>

namespace devhost
{

/// One SDK call while it is being answered: it stands in the journal from the start, and its answer is the
/// usual one or the one that was arranged for it.
class SdkCall
{
public:
    /// @param subject SDK class without "pv" and "_c", empty for the application; id tells its objects apart.
    template <class... Arguments>
    SdkCall(HostContext& context, const QString& subject, const QString& id, const char* method,
            const Arguments&... arguments)
        : SdkCall(context, subject, id, QString::fromLatin1(method), QStringList{written(arguments)...})
    {
    }

    /// @return whether the call does its work; if not, nothing is to be changed or given.
    bool takesEffect() const { return !m_arranged || m_arranged->outcome == Outcome::Usual; }

    /// @param succeeded whether the call could do its work.
    /// @return the result code to answer.
    pvResult result(bool succeeded = true) const;

    /// Gives an object out, borrowed. @param object null counts as a failure. @return the result code to
    /// answer.
    template <class Interface, class Object>
    pvResult giveObject(Interface** out, Object* object) const
    {
        if (out != nullptr)
            *out = takesEffect() ? object : nullptr;
        return result(object != nullptr);
    }

    /// Gives a value out. @return the result code to answer.
    template <class Value>
    pvResult giveValue(Value* out, const Value& value) const
    {
        if (out != nullptr && takesEffect())
            *out = value;
        return result();
    }

    /// Appends a list's entries (HostList) to an array. @return the result code to answer.
    template <class List>
    pvResult giveList(pvObjectPtrArray* out, const List& list) const
    {
        if (out != nullptr && takesEffect())
            list.appendTo(*out);
        return result();
    }

    /// Gives a 32-bit value out through a long as a host with 32-bit longs does: only the low 32 bits are
    /// written.
    pvResult giveLow32(long* out, quint32 value) const;

private:
    SdkCall(HostContext& context, const QString& subject, const QString& id, const QString& method,
            const QStringList& arguments);

    static QString written(const pvString& text);
    static QString written(bool flag);
    static QString written(double number);
    static QString written(const void* pointer);
    static QString written(long number) { return QString::number(number); }
    template <class Enumeration>
    static std::enable_if_t<std::is_enum_v<Enumeration>, QString> written(Enumeration value)
    {
        return QString::number(static_cast<int>(value));
    }

    std::optional<StubbedAnswers::Answer> m_arranged;
};

} // namespace devhost
