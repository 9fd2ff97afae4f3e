#include "dev/host/model/SdkCall.h"

#include "dev/host/model/HostText.h"

#include <QLocale>

namespace devhost
{

SdkCall::SdkCall(HostContext& context, const QString& subject, const QString& id, const QString& method,
                 const QStringList& arguments)
{
    const QString name = subject.isEmpty() ? method : subject + '.' + method;
    const QString object = id.isEmpty() ? subject : subject + '[' + id + ']';
    const QString line =
        (subject.isEmpty() ? method : object + '.' + method) + '(' + arguments.join(", ") + ')';
    context.journal.add(name, line);
    m_arranged = context.answers.find(name);
}

pvResult SdkCall::result(bool succeeded) const
{
    if (m_arranged)
        return m_arranged->result;
    return succeeded ? PVRESULT_True : PVRESULT_False;
}

pvResult SdkCall::giveLow32(long* out, quint32 value) const
{
    if (out != nullptr && takesEffect()) {
        const quint64 upperHalf = static_cast<quint64>(*out) & ~quint64{0xFFFFFFFF};
        *out = static_cast<long>(upperHalf | value);
    }
    return result();
}

QString SdkCall::written(const pvString& text)
{
    return '"' + toQString(text) + '"';
}

QString SdkCall::written(bool flag)
{
    return flag ? "true" : "false";
}

QString SdkCall::written(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

QString SdkCall::written(const void* pointer)
{
    return pointer != nullptr ? "pointer" : "null";
}

} // namespace devhost
