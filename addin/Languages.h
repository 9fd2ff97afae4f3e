#pragma once

#include <QLocale>

#include <pvInterface/pvEnumerations.h>

/// A language that the host can be set to, and what the add-in does in it.
struct Language {
    int hostValue;            ///< Its pvLanguage_e, as the host's documentation numbers them.
    QLocale::Language locale; ///< What Qt's default locale becomes; used with a translation only.
    const char* translation;  ///< The compiled translation in the bundle; null where the texts stay English.
    const char* helpName;     ///< The language's name in addresses of the host's help.
};

/// @return the language with that value of the host's; null for one that the add-in does not know.
const Language* findLanguage(pvLanguage_e hostValue);
