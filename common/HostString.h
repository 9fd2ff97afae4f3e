#pragma once

#include <QString>

#include <pvLibrary/pvString.h>

/// @return a host string with the Qt text's wide-character form.
pvString toPVString(const QString& text);

/// @return a Qt string with the host string's text, up to its first zero character.
QString toQString(const pvString& text);
