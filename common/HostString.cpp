#include "common/HostString.h"

pvString toPVString(const QString& text)
{
    return pvString(text.toStdWString().c_str());
}

QString toQString(const pvString& text)
{
    return QString::fromWCharArray(text.GetBuffer());
}
