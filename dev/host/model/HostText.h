#pragma once

#include <pvLibrary/pvString.h>

#include <QString>

namespace devhost
{

inline QString toQString(const pvString& text)
{
    return QString::fromWCharArray(text.GetBuffer());
}
inline pvString toPvString(const QString& text)
{
    return pvString(text.toStdWString().c_str());
}

} // namespace devhost
