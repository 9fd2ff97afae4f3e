#pragma once

#include <QMetaType>
#include <QString>
#include <QVector>

namespace test
{

/// What the add-in is to do in one of the host's languages.
struct HostLanguage {
    int value;           ///< The host's number.
    QString locale;      ///< Qt's default locale afterwards; empty where it stays.
    QString translation; ///< The name in the translation's file name; empty where the texts stay English.
    QString help;        ///< The name in help addresses; empty where there is none.
};

/// The languages that the add-in knows, and four that it does not.
inline QVector<HostLanguage> hostLanguages()
{
    return {{1, "de", "german", "German"},
            {2, "en", "en", "English"},
            {3, "tr", "turkish", "Turkish"},
            {5, "pl", "polish", "Polish"},
            {6, "ja", "japanese", "Japanese"},
            {7, "fr", "french", "French"},
            {8, "zh", "chinese", "Chinese"},
            {9, "zh", "chinese-simple", "Chinese-simplified"},
            {10, "it", "italian", "Italian"},
            {11, "es", "spanish", "Spanish"},
            {13, "ko", "korean", "Korean"},
            {18, "ru", "russian", "Russian"},
            {19, "pt", "portugese-brazil", "Portuguese-brazilian"},
            {20, "", "", "Czech"},
            {0, "", "", ""},
            {4, "", "", ""},
            {14, "", "", ""},
            {21, "", "", ""}};
}

} // namespace test

Q_DECLARE_METATYPE(test::HostLanguage)
